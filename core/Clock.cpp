#include "core/Clock.h"

#include <chrono>
#include <cstdint>
#include <utility>

namespace zul {

namespace {

std::function<double()>& overridingSource()
{
    static std::function<double()> source;
    return source;
}

} // namespace

double wallClock()
{
    const auto& source = overridingSource();
    if (source) {
        return source();
    }
    using std::chrono::milliseconds;
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    const std::int64_t count = std::chrono::duration_cast<milliseconds>(sinceEpoch).count();
    const std::int64_t wholeSeconds = count / 1000;
    const std::int64_t rest = count % 1000;
    return static_cast<double>(wholeSeconds) + static_cast<double>(rest) * 0.001;
}

ClockOverride::ClockOverride(std::function<double()> source)
{
    overridingSource() = std::move(source);
}

ClockOverride::~ClockOverride()
{
    overridingSource() = nullptr;
}

} // namespace zul
