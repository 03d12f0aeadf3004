#pragma once

#include "message/DeviceStatus.h"

#include <QColor>

namespace gui {

/// How the project panel shows a bus state.
struct BusStateLook
{
    const char* text;
    QColor color;
};

/// The look of the state; every state that is not one of its own is "open".
const BusStateLook& busStateLook(DeviceStatus status);

} // namespace gui
