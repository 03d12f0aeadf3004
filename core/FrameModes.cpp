#include "core/FrameModes.h"

const char* messageModePrefix(std::uint32_t mode)
{
    return mode < messageModes.size() ? messageModes[mode].prefix : "";
}
