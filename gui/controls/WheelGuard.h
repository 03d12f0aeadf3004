#pragma once

#include <QObject>

class QWidget;

namespace gui {

/// Lets the wheel change a control only while it has the focus, so that scrolling a table does not
/// change what the wheel passes over.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards `control` for as long as it lives.
    static void protect(QWidget* control);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit WheelGuard(QWidget* control);
};

} // namespace gui
