#pragma once

#include "message/DeviceInfo.h"

namespace canvirtual {

/// What the module says of itself, with the editors of all properties.
DeviceInfo deviceDescription();

} // namespace canvirtual
