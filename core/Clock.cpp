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
    const qint64 wholeSeconds = milliseconds / 1000;
    const qint64 rest = milliseconds % 1000;
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
