#include "core/Clock.h"

#include <QDateTime>

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
    const qint64 milliseconds = QDateTime::currentMSecsSinceEpoch();
    return static_cast<double>(milliseconds / 1000) +
           static_cast<double>(milliseconds % 1000) * 0.001;
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
