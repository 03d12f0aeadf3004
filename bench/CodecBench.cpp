// The codec of the profile floor: values and texts of frames, each against the least that somebody
// writes who knows type, position and format in advance.

#include "bench/BenchMain.h"
#include "profile/ByteOrder.h"
#include "profile/CanAerospaceId.h"
#include "profile/CanAerospaceLine.h"
#include "profile/DataTypes.h"
#include "profile/ValueCodec.h"
#include "profile/ValueText.h"
#include "tests/support/StoreEnumerations.h"

#include <array>
#include <cstdio>
#include <functional>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using zul::ArincType;
using zul::MessageCan;

using Buffer = std::array<char, zul::valueTextCapacity>;
using Frames = std::vector<MessageCan>;
using Run = std::function<void(benchmark::State&)>;

constexpr std::size_t frameCount = 256; // they stay in the first level of the cache
constexpr std::int32_t enumId = 1;
constexpr int decimal = 0;
constexpr int hexadecimal = 1;
constexpr double valueTarget = 3.0;
constexpr double textTarget = 2.0;

const Frames& frames()
{
    static const Frames frames = [] {
        constexpr unsigned seed = 825;
        std::mt19937 generator(seed);
        Frames made(frameCount);
        for (MessageCan& frame : made) {
            frame.setId(static_cast<std::uint32_t>(generator()) & 0x7ffU);
            frame.setByteCount(8);
            for (std::int32_t i = 0; i < 8; ++i) {
                frame.msg()[i] = static_cast<std::uint8_t>(generator());
            }
            // Singles and doubles of a usual size.
            for (const std::int32_t i : {0, 4}) {
                frame.msg()[i] = 0x40;
                frame.msg()[i + 1] &= 0x5fU;
            }
        }
        return made;
    }();
    return frames;
}

Frames framesOfType(std::uint8_t code)
{
    Frames changed = frames();
    for (MessageCan& frame : changed) {
        frame.msg()[zul::canaerospace::dataTypeByte] = code;
    }
    return changed;
}

// In the bytes from 0 on, an ENUM in the lowest four bits of byte 7.
ProfileParameter arincParameter(ArincType type)
{
    ProfileParameter parameter;
    parameter.parameterKind = ParameterKind::Arinc825;
    parameter.dtc = static_cast<std::uint32_t>(type);
    parameter.eppBit = 7;
    parameter.min = -40.0;
    parameter.max = 85.0;
    parameter.enumId = enumId;
    if (type == ArincType::Enum) {
        parameter.sppByte = 7;
        parameter.eppByte = 7;
        parameter.eppBit = 3;
    }
    return parameter;
}

ProfileParameter scaledParameter(ParameterKind kind, std::uint32_t code)
{
    ProfileParameter parameter;
    parameter.parameterKind = kind;
    parameter.dtc = code;
    parameter.scaleFactor = 0.25;
    parameter.scaleOffset = -3.0;
    return parameter;
}

// Runs `read`, which gives a number, on every frame.
template <typename Read>
void measureReading(benchmark::State& state, const Read& read)
{
    const Frames& all = frames();
    for ([[maybe_unused]] auto _ : state) {
        for (const MessageCan& frame : all) {
            benchmark::DoNotOptimize(read(frame));
        }
    }
    bench::setItems(state, frameCount);
}

// Runs `write`, which fills a buffer, on every frame.
template <typename Write>
void measureWriting(benchmark::State& state, const Frames& all, const Write& write)
{
    Buffer buffer{};
    for ([[maybe_unused]] auto _ : state) {
        for (const MessageCan& frame : all) {
            write(buffer, frame);
            benchmark::DoNotOptimize(buffer.data());
            benchmark::ClobberMemory();
        }
    }
    bench::setItems(state, frameCount);
}

template <typename Number>
Number numberAt(const MessageCan& frame, std::int32_t position)
{
    using Wide = std::conditional_t<sizeof(Number) == 8, std::uint64_t, std::uint32_t>;
    using Narrow = std::conditional_t<sizeof(Number) == 1, std::uint8_t, std::uint16_t>;
    using Bits = std::conditional_t<(sizeof(Number) > 2), Wide, Narrow>;
    auto bits = zul::loadBits<Bits>(&frame.msg()[position]);
    if constexpr (sizeof(Bits) > 1) {
        bits = zul::bigEndianToHost(bits);
    }
    return zul::numberOfBits<Number>(bits);
}

/// The benchmarks, and what of them is held against what.
class Suite
{
public:
    Suite()
    {
        for (std::int32_t value = 0; value < 16; ++value) {
            zul::test::addEnumValue(m_store, enumId, value, "Running");
        }
        addArincValues();
        addCanAerospaceValues();
        addRawValues();
        addTexts();
        addLines();
    }

    const std::vector<bench::Comparison>& comparisons() const { return m_comparisons; }

private:
    void add(const std::string& name, const Run& codec, const Run& plain, double target)
    {
        benchmark::RegisterBenchmark((name + "/codec").c_str(), codec);
        benchmark::RegisterBenchmark((name + "/plain").c_str(), plain);
        m_comparisons.push_back({name + "/codec", name + "/plain", target});
    }

    // Held against load, swap and scale at a fixed place, with the factor made in advance.
    template <typename Number>
    void addValue(const std::string& name, const ProfileParameter& parameter, std::int32_t position,
                  double factor, double offset)
    {
        add(
            "value/" + name,
            [parameter](benchmark::State& state) {
                measureReading(state,
                               [&](const MessageCan& frame) { return valueOf(frame, parameter); });
            },
            [position, factor, offset](benchmark::State& state) {
                measureReading(state, [=](const MessageCan& frame) {
                    return static_cast<double>(numberAt<Number>(frame, position)) * factor + offset;
                });
            },
            valueTarget);
    }

    // `steps` of the whole range; 0 for what is not scaled.
    template <typename Number>
    void addArinc(ArincType type, double steps, std::int32_t position = 0)
    {
        const ProfileParameter parameter = arincParameter(type);
        constexpr bool isSigned = std::is_signed_v<Number>;
        const double range = isSigned ? 2 * parameter.max : parameter.max - parameter.min;
        addValue<Number>(zul::arincTypes[parameter.dtc].name, parameter, position,
                         steps != 0.0 ? range / steps : 1.0,
                         steps != 0.0 && !isSigned ? parameter.min : 0.0);
    }

    template <typename Number>
    void addCanAerospace(std::uint32_t code)
    {
        const ProfileParameter parameter = scaledParameter(ParameterKind::CanAerospace, code);
        addValue<Number>(zul::canAerospaceTypes[code].name, parameter,
                         zul::canaerospace::payloadByte, parameter.scaleFactor,
                         parameter.scaleOffset);
    }

    template <typename Number>
    void addRaw(std::uint32_t index, std::int32_t position)
    {
        const ProfileParameter parameter = scaledParameter(ParameterKind::Raw, index);
        addValue<Number>(zul::rawSelections[index], parameter, position, parameter.scaleFactor,
                         parameter.scaleOffset);
    }

    void addArincValues()
    {
        constexpr double steps64 = 18446744073709551616.0;
        addArinc<std::uint64_t>(ArincType::Enum, 0.0);
        addArinc<std::int8_t>(ArincType::Char, 255.0);
        addArinc<std::uint8_t>(ArincType::UChar, 255.0);
        addArinc<std::uint8_t>(ArincType::AChar, 0.0);
        addArinc<std::int16_t>(ArincType::Short, 65535.0);
        addArinc<std::uint16_t>(ArincType::UShort, 65535.0);
        addArinc<std::int32_t>(ArincType::Long, 4294967295.0);
        addArinc<std::uint32_t>(ArincType::ULong, 4294967295.0);
        addArinc<float>(ArincType::Float, 0.0);
        addArinc<std::int64_t>(ArincType::Long64, steps64);
        addArinc<std::uint64_t>(ArincType::ULong64, steps64);
        addArinc<double>(ArincType::Double, 0.0);
        addArinc<std::uint8_t>(ArincType::Bool, 0.0);
        addArinc<std::uint8_t>(ArincType::Bcd, 0.0);
    }

    void addCanAerospaceValues()
    {
        addCanAerospace<float>(2);
        addCanAerospace<std::int32_t>(3);
        addCanAerospace<std::uint32_t>(4);
        addCanAerospace<std::int16_t>(6);
        addCanAerospace<std::uint16_t>(7);
        addCanAerospace<std::int8_t>(9);
        addCanAerospace<std::uint8_t>(10);
    }

    void addRawValues()
    {
        addRaw<std::uint8_t>(3, 3);
        addRaw<std::int16_t>(9, 2);
        addRaw<std::int32_t>(13, 4);
        addRaw<float>(14, 0);
        addRaw<std::int64_t>(16, 0);
        addRaw<double>(17, 0);
    }

    // Held against one print of a number that is known in advance.
    template <typename Plain>
    void addText(ArincType type, const Plain& plain)
    {
        const ProfileParameter parameter = arincParameter(type);
        add(
            std::string("text/") + zul::arincTypes[parameter.dtc].name,
            [this, parameter](benchmark::State& state) {
                measureWriting(state, frames(), [&](Buffer& buffer, const MessageCan& frame) {
                    textOf(buffer.data(), buffer.size(), frame, m_store, parameter);
                });
            },
            [plain](benchmark::State& state) { measureWriting(state, frames(), plain); },
            textTarget);
    }

    void addNumberText(ArincType type)
    {
        std::vector<double> values;
        for (const MessageCan& frame : frames()) {
            values.push_back(valueOf(frame, arincParameter(type)));
        }
        addText(type, [values](Buffer& buffer, const MessageCan& frame) {
            const auto index = static_cast<std::size_t>(&frame - frames().data());
            std::snprintf(buffer.data(), buffer.size(), "%f", values[index]);
        });
    }

    // Where the compiler does not see how long the text is, and really prints.
    template <typename Choose>
    void addFixedText(ArincType type, const Choose& choose)
    {
        addText(type, [choose](Buffer& buffer, const MessageCan& frame) {
            const char* text = choose(frame);
            benchmark::DoNotOptimize(text);
            std::snprintf(buffer.data(), buffer.size(), "%s", text);
        });
    }

    void addTexts()
    {
        for (const ArincType type :
             {ArincType::Char, ArincType::UChar, ArincType::Short, ArincType::UShort,
              ArincType::Long, ArincType::ULong, ArincType::Float, ArincType::Long64,
              ArincType::ULong64, ArincType::Double}) {
            addNumberText(type);
        }
        addFixedText(ArincType::NoData, [](const MessageCan&) { return "NO DATA"; });
        addFixedText(ArincType::Bool, [](const MessageCan& frame) {
            return frame.msg()[0] % 2 != 0 ? "true" : "false";
        });
        addText(ArincType::Opaque, [](Buffer& buffer, const MessageCan& frame) {
            const zul::MessageData& b = frame.msg();
            std::snprintf(buffer.data(), buffer.size(), "%d %d %d %d %d %d %d %d", b[0], b[1], b[2],
                          b[3], b[4], b[5], b[6], b[7]);
        });
        addText(ArincType::AChar, [](Buffer& buffer, const MessageCan& frame) {
            std::snprintf(buffer.data(), buffer.size(), "%c", frame.msg()[0]);
        });
        addText(ArincType::Bcd, [](Buffer& buffer, const MessageCan& frame) {
            std::snprintf(buffer.data(), buffer.size(), "%d", frame.msg()[0] % 10);
        });
        addText(ArincType::Enum, [](Buffer& buffer, const MessageCan& frame) {
            std::snprintf(buffer.data(), buffer.size(), "%d: %s", frame.msg()[7] & 15, "Running");
        });
    }

    template <typename Plain>
    void addLine(std::uint8_t code, int numberType, const Plain& plain)
    {
        add(
            std::string("line/") + zul::canAerospaceTypes[code].name +
                (numberType == decimal ? "/decimal" : "/hexadecimal"),
            [code, numberType](benchmark::State& state) {
                measureWriting(
                    state, framesOfType(code), [=](Buffer& buffer, const MessageCan& frame) {
                        canAerospaceLine(buffer.data(), buffer.size(), frame, numberType);
                    });
            },
            [code, plain](benchmark::State& state) {
                measureWriting(state, framesOfType(code), plain);
            },
            textTarget);
    }

    void addLines()
    {
        addLine(0, decimal, [](Buffer& buffer, const MessageCan& frame) {
            const zul::MessageData& b = frame.msg();
            std::snprintf(buffer.data(), buffer.size(), "%s %3d %-7s %d %03d | %s", "NOD", b[0],
                          "NODATA", b[2], b[3], "");
        });
        addLine(2, decimal, [](Buffer& buffer, const MessageCan& frame) {
            const zul::MessageData& b = frame.msg();
            std::snprintf(buffer.data(), buffer.size(), "%s %3d %-7s %d %03d | %f", "NOD", b[0],
                          "FLOAT", b[2], b[3], static_cast<double>(numberAt<float>(frame, 4)));
        });
        addLine(3, decimal, [](Buffer& buffer, const MessageCan& frame) {
            const zul::MessageData& b = frame.msg();
            std::snprintf(buffer.data(), buffer.size(), "%s %3d %-7s %d %03d | %d", "NOD", b[0],
                          "LONG", b[2], b[3], numberAt<std::int32_t>(frame, 4));
        });
        addLine(3, hexadecimal, [](Buffer& buffer, const MessageCan& frame) {
            const zul::MessageData& b = frame.msg();
            std::snprintf(buffer.data(), buffer.size(), "%s $%2X %-7s $%02X $%02X | 0x%08x", "NOD",
                          b[0], "LONG", b[2], b[3], numberAt<std::uint32_t>(frame, 4));
        });
        addLine(16, decimal, [](Buffer& buffer, const MessageCan& frame) {
            const zul::MessageData& b = frame.msg();
            std::snprintf(buffer.data(), buffer.size(), "%s %3d %-7s %d %03d | %d %d %d %d", "NOD",
                          b[0], "UCHAR4", b[2], b[3], b[4], b[5], b[6], b[7]);
        });
        addLine(16, hexadecimal, [](Buffer& buffer, const MessageCan& frame) {
            const zul::MessageData& b = frame.msg();
            std::snprintf(buffer.data(), buffer.size(),
                          "%s $%2X %-7s $%02X $%02X | 0x%02hhx 0x%02hhx 0x%02hhx 0x%02hhx", "NOD",
                          b[0], "UCHAR4", b[2], b[3], b[4], b[5], b[6], b[7]);
        });
    }

    ProfileStore m_store;
    std::vector<bench::Comparison> m_comparisons;
};

} // namespace

int main(int argc, char** argv)
{
    const Suite suite;
    return bench::runBenchmarks(argc, argv, suite.comparisons());
}
