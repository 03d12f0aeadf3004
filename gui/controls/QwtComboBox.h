#pragma once

#include <QComboBox>

namespace gui {

/// A selection box whose items stand for values: the value of an item is its data, never its
/// position.
class QwtComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit QwtComboBox(int index = 0, QWidget* parent = nullptr);

    /// Selects the item whose data (`Qt::UserRole`) is `value`; nothing is selected if there is
    /// none.
    void setData(int value);

signals:
    /// The user chose an item; `value` is its data.
    void signalActivated(int index, int value);
    /// \overload
    void signalActivated(int value);

private:
    int m_index;
};

} // namespace gui
