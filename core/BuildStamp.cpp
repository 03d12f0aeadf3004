#include "core/Version.h"

namespace zul {

// A file of its own, built without the compiler cache, which would give the time of an older build.
std::string buildStamp()
{
    return __DATE__ " " __TIME__;
}

} // namespace zul
