#include "gui/desktop/BusStates.h"

namespace gui {

namespace {

constexpr BusStateLook detached{"BUS detached", QColor(150, 150, 150)};
constexpr BusStateLook passive{"BUS passive", QColor(255, 150, 0)};
constexpr BusStateLook off{"BUS Off", QColor(255, 0, 0)};
constexpr BusStateLook open{"BUS open", QColor(0, 200, 0)};

} // namespace

const BusStateLook& busStateLook(DeviceStatus status)
{
    switch (status) {
    case DeviceStatus::Closed:
        return detached;
    case DeviceStatus::BusPassive:
        return passive;
    case DeviceStatus::BusOff:
        return off;
    default:
        return open;
    }
}

} // namespace gui
