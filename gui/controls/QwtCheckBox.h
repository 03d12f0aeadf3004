#pragma once

#include <QCheckBox>

namespace gui {

/// A check box that repeats its index in its signal.
class QwtCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit QwtCheckBox(int index = 0, QWidget* parent = nullptr);

    /// 0 is unchecked, anything else checked.
    void setValue(int value);

signals:
    void signalToggled(int index, bool value);

private:
    int m_index;
};

} // namespace gui
