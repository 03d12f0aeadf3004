#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace gui {

/// Shows the cursor that asks for patience while it lives.
class BusyCursor
{
public:
    explicit BusyCursor(Qt::CursorShape shape) { QGuiApplication::setOverrideCursor(shape); }
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

} // namespace gui
