#include "measure/StatisticRowText.h"

#include "core/FrameModes.h"
#include "measure/Milliseconds.h"

#include <algorithm>

namespace {

int placeOf(double seconds, double scale, int width)
{
    if (!(scale > 0.0)) { // also what is no number
        return 0;
    }
    const double place = seconds / scale * width;
    if (!(place > 0.0)) {
        return 0;
    }
    return static_cast<int>(std::min(place, static_cast<double>(width)));
}

} // namespace

QString statisticIdText(const StatisticEntry& entry, StatisticView view)
{
    if (isErrorFrame(entry)) {
        return QLatin1String(errorFrameText);
    }
    const char* prefix = messageModePrefix(static_cast<std::uint32_t>(entry.frame.mode()));
    if (view == StatisticView::PeriodTime) {
        return QString::asprintf("%s 0x%X", prefix, entry.frame.id());
    }
    return QString::asprintf("%s %d", prefix, static_cast<int>(entry.frame.id()));
}

QString statisticCountText(const StatisticEntry& entry)
{
    return QString::asprintf("%u", entry.count);
}

bool isErrorFrame(const StatisticEntry& entry)
{
    return entry.frame.frameType() == zul::MessageCan::EFrameType::Error;
}

QString periodText(double minimum, double period, double maximum)
{
    return QStringLiteral("[%1]  %2  [%3]").arg(msText(minimum), msText(period), msText(maximum));
}

PeriodBand periodBand(double minimum, double maximum, double filtered, double scale, int width)
{
    PeriodBand band;
    band.left = placeOf(minimum, scale, width);
    band.width = std::max(placeOf(maximum, scale, width) - band.left, 0);
    band.line = std::min(placeOf(filtered, scale, width), std::max(width - 1, 0));
    return band;
}
