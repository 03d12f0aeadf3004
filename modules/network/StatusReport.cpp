#include "modules/network/StatusReport.h"

#include "modules/support/StatusRows.h"

namespace cannetwork {

std::unique_ptr<zul::MessageStatus> makeStatusMessage(const Report& report)
{
    const LinkCounters& counters = report.counters;
    auto message = std::make_unique<zul::MessageStatus>();
    // Counters that were cleared in between start again at 0.
    const auto since = [](std::uint64_t now, std::uint64_t before) {
        return now >= before ? now - before : now;
    };
    message->messageCount0 =
        perSecond(since(counters.receivedFrames, report.before.receivedFrames), report.elapsed);
    message->messageCount1 =
        perSecond(since(counters.sentFrames, report.before.sentFrames), report.elapsed);
    message->entries = {
        stateEntry(DeviceStatus::Open),
        textEntry("Protocol", protocolNames.at(static_cast<std::size_t>(report.protocol))),
        textEntry("Peer", report.peer),
        numberEntry("Received", counters.receivedFrames),
        numberEntry("Sent", counters.sentFrames),
        numberEntry("Received datagrams", counters.receivedDatagrams),
        numberEntry("Sent datagrams", counters.sentDatagrams),
        numberEntry("Bad datagrams", counters.badDatagrams, color::warning),
        numberEntry("Foreign datagrams", counters.foreignDatagrams, color::warning),
        numberEntry("Missing datagrams", counters.missingDatagrams, color::bad),
        numberEntry("Dropped by kernel", counters.kernelDrops, color::bad),
        numberEntry("Lost frames", counters.lostFrames, color::bad),
        numberEntry("Unsent frames", counters.unsentFrames, color::bad),
        fillEntry("RX queue", report.waiting, report.capacity),
        numberEntry("CPM", report.schedule.left),
        numberEntry("Schedule mean late [us]", report.schedule.meanLateness / microsecond),
        numberEntry("Schedule worst late [us]", report.schedule.worstLateness / microsecond),
    };
    return message;
}

} // namespace cannetwork
