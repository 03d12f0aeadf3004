#pragma once

#include "message/DeviceInfo.h"

namespace cannetwork {

/// What the module says of itself.
DeviceInfo deviceDescription();

} // namespace cannetwork
