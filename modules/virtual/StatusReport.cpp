#include "modules/virtual/StatusReport.h"

#include "modules/support/StatusRows.h"

#include <algorithm>
#include <cmath>

namespace canvirtual {

namespace {

std::int64_t loadInTenths(const PortReport& report)
{
    if (report.elapsed <= 0) {
        return 0;
    }
    // A frame counts when it ends: one that began before the window would make more than 100 %.
    const double share = toSeconds(report.window.busy) / toSeconds(report.elapsed);
    return std::lround(std::min(share, 1.0) * 1000.0);
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
    message->entries = {
        stateEntry(report.status),
        textEntry("Bus", context.busName),
        {"Scenario", scenarioNames.at(static_cast<std::size_t>(context.scenario)), color::plain},
        numberEntry("Bit rate [bit/s]", context.rates.nominal),
        numberEntry("Data bit rate [bit/s]", context.rates.data),
        {"Bus load [%]", tenthsText(loadInTenths(report)), color::plain},
        numberEntry("Received", counters.received),
        numberEntry("Sent", counters.sent),
        numberEntry("Error frames", counters.errorFrames, color::warning),
        numberEntry("Lost frames", counters.lost, color::bad),
        fillEntry("TX queue", report.queued, BusPort::transmitCapacity),
        errorCounterEntry("REC", report.receiveErrors),
        errorCounterEntry("TEC", report.transmitErrors),
        numberEntry("Bus-off count", counters.busOff, color::bad),
        {"Skipped [s]", tenthsText(counters.skipped * 10 / second),
         counters.skipped > 0 ? color::warning : color::plain},
        numberEntry("CPM", report.scheduled),
    };
    return message;
}

} // namespace canvirtual
