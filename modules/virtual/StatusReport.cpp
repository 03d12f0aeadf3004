#include "modules/virtual/StatusReport.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace canvirtual {

namespace {

constexpr const char* plain = "#ffffff";
constexpr const char* good = "#dcffdc";
constexpr const char* warning = "#ffffc8";
constexpr const char* bad = "#ffc8c8";

std::uint32_t perSecond(std::uint64_t count, BusTime elapsed)
{
    if (elapsed <= 0) {
        return 0;
    }
    const double rate = static_cast<double>(count) / toSeconds(elapsed) + 0.5;
    constexpr double largest = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::min(rate, largest));
}

/// Tenths as a decimal number with a point, whatever the locale.
std::string tenthsText(std::int64_t tenths)
{
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

std::int64_t loadInTenths(const PortReport& report)
{
    if (report.elapsed <= 0) {
        return 0;
    }
    // A frame counts when it ends: one that began before the window would make more than 100 %.
    const double share = toSeconds(report.window.busy) / toSeconds(report.elapsed);
    return std::lround(std::min(share, 1.0) * 1000.0);
}

zul::DeviceStatusEntry stateEntry(DeviceStatus status)
{
    switch (status) {
    case DeviceStatus::Closed:
        return {"State", "Closed", bad};
    case DeviceStatus::Open:
        return {"State", "Active", good};
    case DeviceStatus::BusPassive:
        return {"State", "Passive", warning};
    case DeviceStatus::BusOff:
        return {"State", "Bus off", bad};
    }
    return {"State", "Unknown", bad};
}

template <typename Number>
zul::DeviceStatusEntry numberEntry(const char* label, Number number, const char* colorIfAny = plain)
{
    return {label, std::to_string(number), number != 0 ? colorIfAny : plain};
}

const char* errorCounterColor(int counter)
{
    constexpr int warningLimit = 96;
    constexpr int passiveLimit = 127;
    if (counter > passiveLimit) {
        return bad;
    }
    return counter >= warningLimit ? warning : plain;
}

} // namespace

std::unique_ptr<zul::MessageStatus> makeStatusMessage(const PortReport& report,
                                                      const ReportContext& context)
{
    auto message = std::make_unique<zul::MessageStatus>();
    message->bitCount0 = perSecond(report.window.receivedBits, report.elapsed);
    message->bitCount1 = perSecond(report.window.sentBits, report.elapsed);
    message->messageCount0 = perSecond(report.window.receivedFrames, report.elapsed);
    message->messageCount1 = perSecond(report.window.sentFrames, report.elapsed);

    const PortCounters& counters = report.counters;
    const std::string queue =
        std::to_string(report.queued) + " / " + std::to_string(BusPort::transmitCapacity);
    const char* const queueColor = report.queued < BusPort::transmitCapacity / 2 ? plain : warning;
    message->entries = {
        stateEntry(report.status),
        {"Bus", context.busName, plain},
        {"Scenario", scenarioNames.at(static_cast<std::size_t>(context.scenario)), plain},
        numberEntry("Bit rate [bit/s]", context.rates.nominal),
        numberEntry("Data bit rate [bit/s]", context.rates.data),
        {"Bus load [%]", tenthsText(loadInTenths(report)), plain},
        numberEntry("Received", counters.received),
        numberEntry("Sent", counters.sent),
        numberEntry("Error frames", counters.errorFrames, warning),
        numberEntry("Lost frames", counters.lost, bad),
        {"TX queue", queue, queueColor},
        {"REC", std::to_string(report.receiveErrors), errorCounterColor(report.receiveErrors)},
        {"TEC", std::to_string(report.transmitErrors), errorCounterColor(report.transmitErrors)},
        numberEntry("Bus-off count", counters.busOff, bad),
        {"Skipped [s]", tenthsText(counters.skipped * 10 / second),
         counters.skipped > 0 ? warning : plain},
        numberEntry("CPM", report.scheduled),
    };
    return message;
}

} // namespace canvirtual
