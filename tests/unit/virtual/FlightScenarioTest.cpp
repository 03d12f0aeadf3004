#include "modules/virtual/FlightEncoding.h"
#include "modules/virtual/FlightTables.h"
#include "modules/virtual/Payload.h"
#include "tests/unit/virtual/BusFixture.h"

#include <cmath>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

using namespace canvirtual;

namespace {

using FlightTest = BusFixture;

std::uint64_t bigEndian(const BusFrame& frame, std::size_t offset, std::size_t bytes)
{
    std::uint64_t value = 0;
    for (std::size_t index = 0; index < bytes; ++index) {
        value = value << 8U | frame.data.at(offset + index);
    }
    return value;
}

/// What a receiver makes of the parameter's bytes.
double decoded(const ArincParameter& parameter, const BusFrame& frame)
{
    const auto offset = static_cast<std::size_t>(parameter.position.byte);
    const std::size_t bytes = arincByteCount(parameter.type);
    const std::uint64_t raw = bigEndian(frame, offset, bytes);
    const double scale = std::ldexp(1.0, static_cast<int>(bytes * 8)) - 1.0;
    const double range = parameter.max - parameter.min;
    switch (parameter.type) {
    case ArincType::Char:
        return static_cast<std::int8_t>(raw) * 2 * parameter.max / scale;
    case ArincType::Short:
        return static_cast<std::int16_t>(raw) * 2 * parameter.max / scale;
    case ArincType::Long:
        return static_cast<std::int32_t>(raw) * 2 * parameter.max / scale;
    case ArincType::Long64:
        return static_cast<double>(static_cast<std::int64_t>(raw)) * 2 * parameter.max / scale;
    case ArincType::UChar:
    case ArincType::UShort:
    case ArincType::ULong:
    case ArincType::ULong64:
        return static_cast<double>(raw) * range / scale + parameter.min;
    case ArincType::Float: {
        const auto pattern = static_cast<std::uint32_t>(raw);
        float value = 0;
        std::memcpy(&value, &pattern, sizeof(value));
        return static_cast<double>(value);
    }
    case ArincType::Double: {
        double value = 0;
        std::memcpy(&value, &raw, sizeof(value));
        return value;
    }
    case ArincType::AChar:
        return static_cast<double>(raw);
    default:
        return static_cast<double>(frame.data.at(offset) >> parameter.position.bit &
                                   ((1 << parameter.position.width) - 1));
    }
}

TEST(FlightEncoding, ValuesComeBackWithinTheirResolution)
{
    for (const ArincParameter& parameter : arincParameters) {
        if (parameter.type == ArincType::NoData || parameter.type == ArincType::Opaque ||
            parameter.type == ArincType::AChar) {
            continue;
        }
        const std::size_t bytes = arincByteCount(parameter.type);
        const bool real = parameter.type == ArincType::Float || parameter.type == ArincType::Double;
        const double span = std::max(parameter.max - parameter.min, 2 * parameter.max);
        const double resolution =
            real ? 1e-5 * parameter.max
                 : span / std::ldexp(1.0, static_cast<int>(bytes * 8)) + 1e-12 * span;
        for (double t = 0; t < 300; t += 7.3) {
            BusFrame frame;
            frame.byteCount = static_cast<std::uint32_t>(parameter.byteCount);
            const double value = parameter.value(t);
            ASSERT_GE(value, parameter.min) << parameter.name << " at " << t;
            ASSERT_LE(value, parameter.max) << parameter.name << " at " << t;
            encodeArinc(parameter, value, frame);
            ASSERT_NEAR(decoded(parameter, frame), value, resolution) << parameter.name;
        }
    }
}

TEST(FlightEncoding, ValuesOutsideTheRangeAreLimited)
{
    ArincParameter parameter = {"", 0, 8, 1, ArincType::Short, {2}, 0, -100, 100, signal::zero};
    BusFrame frame;
    frame.byteCount = 8;
    encodeArinc(parameter, 1e30, frame);
    EXPECT_EQ(bigEndian(frame, 2, 2), 0x7FFFU);
    encodeArinc(parameter, -1e30, frame);
    EXPECT_EQ(bigEndian(frame, 2, 2), 0x8001U);
    parameter.type = ArincType::ULong64;
    parameter.position = {0};
    parameter.min = 0;
    encodeArinc(parameter, 1e30, frame);
    EXPECT_EQ(bigEndian(frame, 0, 8), 0xFFFFFFFFFFFFF800U);
}

TEST(FlightEncoding, CanasFrameHasHeaderAndBigEndianPayload)
{
    const CanasParameter parameter = {"", 300, 7, CanasType::Short, 3, 1, "", signal::one};
    BusFrame frame;
    frame.byteCount = canasByteCount(parameter.type);
    encodeCanas(parameter, 258, 0.0, frame);
    EXPECT_EQ(frame.byteCount, 6U);
    EXPECT_EQ(bigEndian(frame, 0, 6), 0x070603'02'0001U);
    EXPECT_EQ(canasByteCount(CanasType::NoData), 4U);
    EXPECT_EQ(canasByteCount(CanasType::Error), 4U);
    EXPECT_EQ(canasByteCount(CanasType::Float), 8U);
    EXPECT_EQ(canasByteCount(CanasType::AChar), 5U);
    EXPECT_EQ(canasByteCount(CanasType::BChar3), 7U);
}

TEST_F(FlightTest, EveryFrameComesAtItsRate)
{
    auto device = openDevice({{"Scenario", "1"}});
    constexpr int seconds = 10;
    std::map<std::pair<bool, std::uint32_t>, int> counts;
    for (const auto& message : run(*device, seconds * second).frames) {
        ++counts[{isExtended(message->mode()), message->id()}];
    }
    std::size_t frames = canasParameters.size();
    for (const CanasParameter& parameter : canasParameters) {
        EXPECT_NEAR((counts[{false, parameter.id}]), parameter.rateHz * seconds, 1.01)
            << parameter.name;
    }
    std::set<std::uint32_t> ids;
    for (const ArincParameter& parameter : arincParameters) {
        ids.insert(parameter.id);
        EXPECT_NEAR((counts[{true, parameter.id}]), parameter.rateHz * seconds, 1.01)
            << parameter.name;
    }
    frames += ids.size();
    EXPECT_EQ(counts.size(), frames);
}

TEST_F(FlightTest, TrafficIsCalmAndVaried)
{
    auto device = openDevice({{"Scenario", "1"}});
    const Received received = run(*device, 5 * second);
    std::set<std::uint32_t> channels;
    std::set<std::uint32_t> redundancies;
    std::set<int> types;
    for (const auto& message : received.frames) {
        if (isExtended(message->mode())) {
            channels.insert(message->id() >> 26U);
            redundancies.insert(message->id() & 3U);
        } else {
            types.insert(message->msg()[1]);
            EXPECT_EQ(message->byteCount(),
                      canasByteCount(static_cast<CanasType>(message->msg()[1])));
        }
    }
    EXPECT_EQ(channels, (std::set<std::uint32_t>{0, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(redundancies, (std::set<std::uint32_t>{0, 1, 2, 3}));
    EXPECT_EQ(types.size(), 30U);
    const double load = std::stod(rowValue(*received.reports.back(), "Bus load [%]"));
    EXPECT_GT(load, 10.0);
    EXPECT_LT(load, 35.0);
}

TEST_F(FlightTest, RedundantSourcesDifferALittle)
{
    auto device = openDevice({{"Scenario", "1"}});
    std::map<std::uint32_t, double> pitch;
    for (const auto& message : run(*device, second).frames) {
        if (isExtended(message->mode()) && (message->id() & ~3U) == arincParameters[0].id) {
            pitch[message->id() & 3U] = decoded(arincParameters[0], frameFromMessage(*message));
        }
    }
    ASSERT_EQ(pitch.size(), 4U);
    EXPECT_NE(pitch[0], pitch[1]);
    EXPECT_NEAR(pitch[0], pitch[3], 1.0);
}

TEST_F(FlightTest, PeriodsAreALittleUneven)
{
    auto device = openDevice({{"Scenario", "1"}});
    std::vector<BusTime> times;
    for (const auto& message : run(*device, 2 * second).frames) {
        if (isExtended(message->mode()) && message->id() == arincParameters[0].id) {
            times.push_back(timeOf(*message));
        }
    }
    std::set<BusTime> periods;
    for (std::size_t index = 1; index < times.size(); ++index) {
        const BusTime period = times[index] - times[index - 1];
        periods.insert(period);
        EXPECT_NEAR(toSeconds(period), 0.01, 0.0012);
    }
    EXPECT_GT(periods.size(), times.size() / 2);
}

const char* arincTypeName(ArincType type)
{
    constexpr std::array<const char*, 16> names = {
        "NODATA", "ENUM",  "CHAR",   "UCHAR",   "ACHAR",  "SHORT",  "USHORT", "LONG",
        "ULONG",  "FLOAT", "LONG64", "ULONG64", "DOUBLE", "OPAQUE", "BOOL",   "BCD"};
    return names.at(static_cast<std::size_t>(type));
}

const char* canasTypeName(CanasType type)
{
    constexpr std::array<const char*, 30> names = {
        "NODATA",  "ERROR",   "FLOAT",  "LONG",    "ULONG",   "BLONG",    "SHORT",    "USHORT",
        "BSHORT",  "CHAR",    "UCHAR",  "BCHAR",   "SHORT_2", "USHORT_2", "BSHORT_2", "CHAR_4",
        "UCHAR_4", "BCHAR_4", "CHAR_2", "UCHAR_2", "BCHAR_2", "MEMID",    "CHKSUM",   "ACHAR",
        "ACHAR_2", "ACHAR_4", "CHAR_3", "UCHAR_3", "BCHAR_3", "ACHAR_3"};
    return names.at(static_cast<std::size_t>(type));
}

const char* unitName(int unit)
{
    static const std::map<int, const char*> names = {
        {0, "n.a."}, {1, "m"},        {4, "kg"},    {8, "s"},   {13, "A"},
        {19, "m/s"}, {21, "kg/h"},    {22, "m/s2"}, {32, "Pa"}, {36, "V"},
        {43, "oC"},  {44, "o (deg)"}, {47, "rad/s"}};
    return names.at(unit);
}

std::string channelText(std::uint32_t id)
{
    constexpr std::array<const char*, 8> names = {"EEC", "RES", "NOC", "DMC",
                                                  "NSC", "UDC", "TMC", "FMC"};
    const std::uint32_t lcc = id >> 26U;
    std::ostringstream text;
    text << names.at(lcc) << " " << lcc << " | ";
    const auto field = [id](unsigned shift, std::uint32_t mask) { return id >> shift & mask; };
    if (lcc == 3) {
        text << "SA " << field(19, 127) << ", DA " << field(12, 127) << ", SP " << field(6, 63)
             << ", DP " << field(0, 63) << " | -";
    } else if (lcc == 4 || lcc == 6) {
        text << "CFID " << field(19, 127) << ", SMT " << field(18, 1) << ", SFID " << field(9, 127)
             << ", SID " << field(2, 127) << " | "
             << "ABCD"[id & 3U];
    } else {
        text << "FID " << field(19, 127) << ", DOC " << field(2, 0x3FFF) << " | "
             << "ABCD"[id & 3U];
    }
    return text.str();
}

std::string positionText(const ArincParameter& parameter)
{
    const BytePosition& position = parameter.position;
    const auto bytes = static_cast<int>(arincByteCount(parameter.type));
    std::ostringstream text;
    if (bytes == 0) {
        text << "0.0 | 0.0";
    } else if (position.width > 0) {
        text << position.byte << "." << position.bit << " | " << position.byte << "."
             << position.bit + position.width - 1;
    } else {
        text << position.byte + bytes - 1 << ".0 | " << position.byte << ".7";
    }
    return text.str();
}

std::string hexText(std::uint32_t id)
{
    std::ostringstream text;
    text << "0x" << std::hex << std::uppercase;
    text.width(8);
    text.fill('0');
    text << id;
    return text.str();
}

std::string numberText(double value)
{
    std::ostringstream text;
    text.precision(12);
    text << value;
    return text.str();
}

/// The tables as the document for the user has them.
std::string renderedTables()
{
    std::ostringstream text;
    text << "| Identifier | Channel | Fields | RCI | Bytes | Rate [Hz] | Parameter | Type | SPP | "
            "EPP | Unit | Min | Max |\n|---|---|---|---|---|---|---|---|---|---|---|---|---|\n";
    for (const ArincParameter& parameter : arincParameters) {
        text << "| " << hexText(parameter.id) << " | " << channelText(parameter.id) << " | "
             << parameter.byteCount << " | " << parameter.rateHz << " | " << parameter.name << " | "
             << arincTypeName(parameter.type) << " | " << positionText(parameter) << " | "
             << unitName(parameter.unit) << " | " << numberText(parameter.min) << " | "
             << numberText(parameter.max) << " |\n";
    }
    text << "\n## CANaerospace frames\n\n"
            "| Identifier | Node | Type | Service | Bytes | Rate [Hz] | Parameter | Unit |\n"
            "|---|---|---|---|---|---|---|---|\n";
    for (const CanasParameter& parameter : canasParameters) {
        text << "| " << parameter.id << " | " << static_cast<int>(parameter.nodeId) << " | "
             << canasTypeName(parameter.type) << " | " << static_cast<int>(parameter.serviceCode)
             << " | " << canasByteCount(parameter.type) << " | " << parameter.rateHz << " | "
             << parameter.name << " | " << (*parameter.unit != '\0' ? parameter.unit : "-")
             << " |\n";
    }
    return text.str();
}

TEST(FlightTables, DocumentListsThemAsTheyAre)
{
    std::ifstream file(DEMO_TRAFFIC_DOCUMENT);
    std::stringstream document;
    document << file.rdbuf();
    const std::string tables = renderedTables();
    if (document.str().find(tables) == std::string::npos) {
        std::ofstream("demo-traffic.actual") << tables;
        FAIL() << "the tables as they should stand are in demo-traffic.actual";
    }
}

TEST(FlightTables, NamesAndCanasIdentifiersAreUnique)
{
    std::set<std::string> names;
    for (const ArincParameter& parameter : arincParameters) {
        EXPECT_TRUE(names.insert(parameter.name).second) << parameter.name;
        EXPECT_LE(parameter.id, maxExtendedId);
    }
    std::set<std::uint32_t> ids;
    for (const CanasParameter& parameter : canasParameters) {
        EXPECT_TRUE(ids.insert(parameter.id).second) << parameter.name;
        EXPECT_LT(parameter.id, 2032U);
        EXPECT_GE(parameter.rateHz, 1);
        EXPECT_LE(parameter.rateHz, 100);
    }
}

} // namespace
