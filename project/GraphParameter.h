#pragma once

#include "profile/ProfileParameter.h"

/// One trace of the oscilloscope.
struct GraphParameter
{
    bool active = true; ///< the trace is shown
    ProfileParameter parameter;
};
