#pragma once

#include <QWidget>

#include <cstdint>

class QButtonGroup;
class QGridLayout;

namespace gui {

/// A value page of the CANaerospace editor: the 32 bits, in two rows of 16.
class ValueBits : public QWidget
{
    Q_OBJECT

public:
    explicit ValueBits(QWidget* parent);

    /// The bits from `lowest` to 31 can be used, the others not.
    void enableFrom(int lowest);
    void setWord(std::uint32_t word);
    bool isChecked(int bit) const;

signals:
    void signalBit(int bit);
    void signalSetAll();
    void signalResetAll();

private:
    void addBit(QGridLayout* layout, int bit);

    QButtonGroup* m_bits;
};

} // namespace gui
