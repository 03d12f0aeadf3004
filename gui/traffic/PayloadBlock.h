#pragma once

#include "project/SendMsg.h"

#include <QWidget>

#include <array>

class QGridLayout;
class QLabel;
class QValidator;

namespace gui {

class QwtByteCount;
class QwtLineEdit;

/// The payload of a message: its byte count, and 64 cells in 4 rows.
class PayloadBlock : public QWidget
{
    Q_OBJECT

public:
    static constexpr int cellCount = 64;

    explicit PayloadBlock(QWidget* parent);

    /// For all cells; `validator` outlives them.
    void setValidator(const QValidator* validator);
    void setNumberType(int numberType);
    /// Feeds byte count and cells. The signals come as with a change by the user.
    void show(const SendMsg& message, int numberType);
    using QWidget::show;
    /// Shows the rows of so many bytes, and enables the cells below it.
    void layOutRows(std::uint32_t byteCount);

    QwtByteCount* byteCount() const { return m_byteCount; }
    QwtLineEdit* cell(int index) const { return m_cells.at(static_cast<std::size_t>(index)); }

signals:
    void signalByteCount(int index, int bytes);
    void signalData(int index, const QString& text);

private:
    void buildByteCount(QGridLayout* layout);
    void buildRow(QGridLayout* layout, int row);

    QwtByteCount* m_byteCount = nullptr;
    std::array<QLabel*, 4> m_rowLabels{};
    std::array<QwtLineEdit*, cellCount> m_cells{};
};

} // namespace gui
