#pragma once

#include "modules/support/BusFrame.h"
#include "modules/support/BusTime.h"

namespace canvirtual {

// Frames and their times are those of all modules.
using namespace canmodule; // NOLINT(google-build-using-namespace)

} // namespace canvirtual
