#include "profile/Serial.h"

namespace zul {

std::uint32_t nextSerial()
{
    static std::uint32_t next = 0;
    return next++;
}

std::uint32_t nextLru825Serial()
{
    static std::uint32_t next = 0;
    return next++;
}

} // namespace zul
