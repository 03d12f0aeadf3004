#include "traffic/MessageModes.h"

#include <algorithm>

int dlcCode(int byteCount)
{
    const auto found = std::find(byteCounts.begin(), byteCounts.end(), byteCount);
    return found != byteCounts.end() ? static_cast<int>(found - byteCounts.begin()) : 0;
}

int byteCountOfDlc(int code)
{
    constexpr int lastCode = static_cast<int>(byteCounts.size()) - 1;
    return byteCounts[static_cast<std::size_t>(std::clamp(code, 0, lastCode))];
}
