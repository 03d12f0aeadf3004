#include "modules/network/StatusReport.h"
#include "modules/support/StatusRows.h"

#include <gtest/gtest.h>

using namespace cannetwork;

namespace {

TEST(NetworkStatus, RowsTellTheCounters)
{
    Report report;
    report.counters = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    report.peer = "192.0.2.1:20000";
    report.waiting = 11;
    report.capacity = 100;
    report.schedule = {12, 0, 13 * microsecond, 14 * microsecond};
    const auto message = makeStatusMessage(report);
    std::vector<std::pair<std::string, std::string>> rows;
    for (const zul::DeviceStatusEntry& entry : message->entries) {
        rows.emplace_back(entry.label, entry.value);
    }
    EXPECT_EQ(rows, (std::vector<std::pair<std::string, std::string>>{
                        {"State", "Active"},
                        {"Protocol", "cannelloni 2"},
                        {"Peer", "192.0.2.1:20000"},
                        {"Received", "1"},
                        {"Sent", "2"},
                        {"Received datagrams", "3"},
                        {"Sent datagrams", "4"},
                        {"Bad datagrams", "5"},
                        {"Foreign datagrams", "6"},
                        {"Missing datagrams", "7"},
                        {"Dropped by kernel", "8"},
                        {"Lost frames", "9"},
                        {"Unsent frames", "10"},
                        {"RX queue", "11 / 100"},
                        {"CPM", "12"},
                        {"Schedule mean late [us]", "13"},
                        {"Schedule worst late [us]", "14"}}));
    EXPECT_LE(rows.size(), 20U) << "more are not shown";
}

TEST(NetworkStatus, LossesAreMarked)
{
    Report report;
    report.counters.missingDatagrams = 1;
    const auto message = makeStatusMessage(report);
    EXPECT_EQ(message->entries[9].color, color::bad);
    EXPECT_EQ(message->entries[10].color, color::plain);
}

TEST(NetworkStatus, RatesAreThoseSinceTheLastReport)
{
    Report report;
    report.counters.receivedFrames = 150;
    report.counters.sentFrames = 20;
    report.before.receivedFrames = 50;
    report.before.sentFrames = 30; // cleared since
    report.elapsed = second / 5;
    const auto message = makeStatusMessage(report);
    EXPECT_EQ(message->messageCount0, 500U);
    EXPECT_EQ(message->messageCount1, 100U);
}

} // namespace
