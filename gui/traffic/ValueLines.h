#pragma once

#include <QWidget>

#include <vector>

namespace gui {

class QwtLineEdit;

/// A value page of the CANaerospace editor: one line or several, side by side.
class ValueLines : public QWidget
{
    Q_OBJECT

public:
    ValueLines(int count, QWidget* parent);

    int count() const { return static_cast<int>(m_lines.size()); }
    /// The first `count` lines can be used, the others not.
    void enableFirst(int count);
    void setMaxLength(int letters);
    void setText(int index, const QString& text);

signals:
    void signalText(int index, const QString& text);

private:
    std::vector<QwtLineEdit*> m_lines;
};

} // namespace gui
