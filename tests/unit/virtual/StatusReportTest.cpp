#include "modules/virtual/StatusReport.h"

#include <cstdint>
#include <gtest/gtest.h>

using namespace canvirtual;

namespace {

const zul::DeviceStatusEntry& row(const zul::MessageStatus& message, const std::string& label)
{
    static const zul::DeviceStatusEntry absent;
    for (const zul::DeviceStatusEntry& entry : message.entries) {
        if (entry.label == label) {
            return entry;
        }
    }
    return absent;
}

TEST(StatusReport, RatesArePerSecond)
{
    PortReport report;
    report.elapsed = second / 5;
    report.window = {20'000, 1'000, 200, 10, second / 10};
    const auto message = makeStatusMessage(report, {});
    EXPECT_EQ(message->bitCount0, 100'000U);
    EXPECT_EQ(message->bitCount1, 5'000U);
    EXPECT_EQ(message->messageCount0, 1'000U);
    EXPECT_EQ(message->messageCount1, 50U);
    EXPECT_EQ(row(*message, "Bus load [%]").value, "50.0");
}

TEST(StatusReport, WindowWithoutLengthHasNoRates)
{
    PortReport report;
    report.window = {1, 1, 1, 1, 1};
    const auto message = makeStatusMessage(report, {});
    EXPECT_EQ(message->bitCount0, 0U);
    EXPECT_EQ(row(*message, "Bus load [%]").value, "0.0");
}

TEST(StatusReport, HugeRatesAreLimited)
{
    PortReport report;
    report.elapsed = 1;
    report.window.receivedBits = UINT64_MAX;
    report.window.busy = second;
    const auto message = makeStatusMessage(report, {});
    EXPECT_EQ(message->bitCount0, UINT32_MAX);
    EXPECT_EQ(row(*message, "Bus load [%]").value, "100.0");
}

TEST(StatusReport, RowsNameStateCountersAndColours)
{
    PortReport report;
    report.elapsed = second;
    report.status = DeviceStatus::BusPassive;
    report.transmitErrors = 130;
    report.receiveErrors = 100;
    report.counters.lost = 3;
    report.counters.skipped = 2 * second + second / 2;
    report.queued = 7;
    report.scheduled = 1'234;
    const ReportContext context = {"Bus B", {500'000, 4'000'000}, ScenarioId::BusOff};
    const auto message = makeStatusMessage(report, context);
    EXPECT_LE(message->entries.size(), 20U);
    EXPECT_EQ(row(*message, "State").value, "Passive");
    EXPECT_EQ(row(*message, "State").color, "#ffffc8");
    EXPECT_EQ(row(*message, "Bus").value, "Bus B");
    EXPECT_EQ(row(*message, "Bit rate [bit/s]").value, "500000");
    EXPECT_EQ(row(*message, "Data bit rate [bit/s]").value, "4000000");
    EXPECT_EQ(row(*message, "TEC").value, "130");
    EXPECT_EQ(row(*message, "TEC").color, "#ffc8c8");
    EXPECT_EQ(row(*message, "REC").color, "#ffffc8");
    EXPECT_EQ(row(*message, "Lost frames").color, "#ffc8c8");
    EXPECT_EQ(row(*message, "Skipped [s]").value, "2.5");
    EXPECT_EQ(row(*message, "TX queue").value, "7 / 2048");
    EXPECT_EQ(row(*message, "CPM").value, "1234");
}

TEST(StatusReport, EveryStateAndScenarioHasARow)
{
    for (const int status : {0, 1, 4, 5, 99}) {
        PortReport report;
        report.status = static_cast<DeviceStatus>(status);
        EXPECT_NE(row(*makeStatusMessage(report, {}), "State").value, "");
    }
    for (int scenario = 0; scenario < scenarioCount; ++scenario) {
        ReportContext context;
        context.scenario = static_cast<ScenarioId>(scenario);
        EXPECT_NE(row(*makeStatusMessage({}, context), "Scenario").value, "");
    }
}

} // namespace
