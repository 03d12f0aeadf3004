#include "profile/CanAerospaceLine.h"

#include "tests/unit/profile/AllocationCount.h"
#include "tests/unit/profile/CodecReference.h"

#include <gtest/gtest.h>
#include <random>

namespace {

using namespace zul;
using test::EightBytes;
using test::frameOf;
using test::printed;

constexpr int decimal = 0;
constexpr int hexadecimal = 1;
constexpr std::uint32_t normalId = 300;

std::string line(std::uint32_t id, const EightBytes& bytes, int numberType,
                 std::size_t capacity = canAerospaceLineCapacity)
{
    std::string buffer(capacity + 1, '#');
    EXPECT_EQ(canAerospaceLine(buffer.data(), capacity, frameOf(bytes, id), numberType), 0);
    EXPECT_EQ(buffer[capacity], '#') << "wrote beyond the capacity";
    return buffer.c_str();
}

std::string payload(std::uint8_t code, const std::array<std::uint8_t, 4>& bytes, int numberType)
{
    const std::string whole =
        line(normalId, {0, code, 0, 0, bytes[0], bytes[1], bytes[2], bytes[3]}, numberType);
    return whole.substr(whole.find(" | ") + 3);
}

/// Decimal and hexadecimal.
std::string payloads(std::uint8_t code, const std::array<std::uint8_t, 4>& bytes)
{
    return payload(code, bytes, decimal) + "; " + payload(code, bytes, hexadecimal);
}

TEST(CanAerospaceLine, PartsOfALine)
{
    const EightBytes bytes{5, 2, 7, 12, 0x40, 0x20, 0, 0};
    EXPECT_EQ(line(normalId, bytes, decimal), "NOD   5 FLOAT   7 012 | 2.500000");
    EXPECT_EQ(line(normalId, bytes, hexadecimal), "NOD $ 5 FLOAT   $07 $0C | 2.500000");
    const EightBytes large{255, 30, 200, 255, 1, 2, 3, 255};
    EXPECT_EQ(line(2032, large, decimal), "29B 255 UNKNOWN 200 255 | 1 2 3 255 ");
    EXPECT_EQ(line(2032, large, hexadecimal), "29B $FF UNKNOWN $C8 $FF | 0x01 0x02 0x03 0xff ");
}

TEST(CanAerospaceLine, ServicesAreNamedInNodeServiceClasses)
{
    EXPECT_EQ(line(128, {1, 0, 0, 0}, decimal), "NSH   1 NODATA  IDS 000 | ");
    EXPECT_EQ(line(2031, {1, 0, 6, 0}, hexadecimal), "NSL $ 1 NODATA  FPS $00 | ");
    EXPECT_EQ(line(normalId, {1, 0, 6, 0}, decimal), "NOD   1 NODATA  6 000 | ");
}

TEST(CanAerospaceLine, DeliberateService7IsPrintedAsANumber)
{
    EXPECT_EQ(line(130, {1, 0, 7, 0}, decimal), "NSH   1 NODATA  7 000 | ");
    EXPECT_EQ(line(130, {1, 0, 7, 0}, hexadecimal), "NSH $ 1 NODATA  $07 $00 | ");
}

TEST(CanAerospaceLine, ErrorPrintsThePayloadThatItDoesNotHave)
{
    MessageCan frame = frameOf({1, 1, 0, 0, 0, 0, 1, 2}, 5);
    frame.setByteCount(4);
    std::array<char, canAerospaceLineCapacity> buffer{};
    canAerospaceLine(buffer.data(), buffer.size(), frame, decimal);
    EXPECT_STREQ(buffer.data(), "EED   1 ERROR   0 000 | 258");
    canAerospaceLine(buffer.data(), buffer.size(), frame, hexadecimal);
    EXPECT_STREQ(buffer.data(), "EED $ 1 ERROR   $00 $00 | $00000102");
}

TEST(CanAerospaceLine, NumberTypesOtherThanOneAreDecimal)
{
    const EightBytes bytes{16, 3, 0, 0, 0, 0, 0, 10};
    for (const int numberType : {-1, 0, 2, 17}) {
        EXPECT_EQ(line(normalId, bytes, numberType), "NOD  16 LONG    0 000 | 10");
    }
}

TEST(CanAerospaceLine, NumbersOf32Bits)
{
    const std::array<std::uint8_t, 4> bytes{0xff, 0xff, 0xff, 0xfe};
    EXPECT_EQ(payloads(1, bytes), "-2; $fffffffe");
    constexpr std::array<std::uint8_t, 5> codes{3, 4, 5, 21, 22};
    for (const std::uint8_t code : codes) {
        EXPECT_EQ(payloads(code, bytes), "-2; 0xfffffffe") << code;
        EXPECT_EQ(payloads(code, {0, 0, 1, 0}), "256; 0x00000100") << code;
    }
}

TEST(CanAerospaceLine, DeliberateUnsignedNumbersOf32BitsHaveASign)
{
    EXPECT_EQ(payload(4, {0xff, 0xff, 0xff, 0xff}, decimal), "-1");
    EXPECT_EQ(payload(4, {0x80, 0, 0, 0}, decimal), "-2147483648");
}

TEST(CanAerospaceLine, NumbersOf16Bits)
{
    const std::array<std::uint8_t, 4> bytes{0xff, 0xfe, 0x01, 0x02};
    EXPECT_EQ(payloads(6, bytes), "-2; 0xfffe");
    EXPECT_EQ(payloads(8, bytes), "65534; 0xfffe");
    EXPECT_EQ(payloads(12, bytes), "-2 258; 0xfffe 0x0102");
    EXPECT_EQ(payloads(13, bytes), "65534 258; 0xfffe 0x0102");
    EXPECT_EQ(payloads(14, bytes), "65534 258; 0xfffe 0x0102");
}

TEST(CanAerospaceLine, DeliberateUshortIsAlwaysHexadecimal)
{
    EXPECT_EQ(payloads(7, {0xff, 0xfe, 0, 0}), "0xfffe; 0xfffe");
}

TEST(CanAerospaceLine, Bytes)
{
    const std::array<std::uint8_t, 4> bytes{0xff, 0x80, 0x01, 0x7f};
    EXPECT_EQ(payloads(9, bytes), "-1; 0xff");
    EXPECT_EQ(payloads(10, bytes), "255; 0xff");
    EXPECT_EQ(payloads(11, bytes), "255; 0xff");
    EXPECT_EQ(payloads(16, bytes), "255 128 1 127; 0xff 0x80 0x01 0x7f");
    EXPECT_EQ(payloads(17, bytes), "255 128 1 127; 0xff 0x80 0x01 0x7f");
    EXPECT_EQ(payloads(18, bytes), "-1 -128; 0xff 0x80");
    EXPECT_EQ(payloads(19, bytes), "255 128; 0xff 0x80");
    EXPECT_EQ(payloads(20, bytes), "255 128; 0xff 0x80");
    EXPECT_EQ(payloads(26, bytes), "-1 -128 1; 0xff 0x80 0x01");
    EXPECT_EQ(payloads(27, bytes), "255 128 1; 0xff 0x80 0x01");
    EXPECT_EQ(payloads(28, bytes), "255 128 1; 0xff 0x80 0x01");
}

TEST(CanAerospaceLine, DeliberateUcharHasNoWidthInHexadecimal)
{
    EXPECT_EQ(payload(10, {5, 0, 0, 0}, hexadecimal), "0x5");
    EXPECT_EQ(payload(9, {5, 0, 0, 0}, hexadecimal), "0x05");
}

TEST(CanAerospaceLine, DeliberateNegativeBytesOfChar4HaveFourDigitsInHexadecimal)
{
    EXPECT_EQ(payloads(15, {0xff, 0x80, 0x01, 0x7f}), "-1 -128 1 127; 0xffff 0xff80 0x01 0x7f");
}

TEST(CanAerospaceLine, Characters)
{
    EXPECT_EQ(payloads(23, {'A', 'B', 'C', 'D'}), "A; A");
    EXPECT_EQ(payloads(24, {'A', 'B', 'C', 'D'}), "A B; A B");
    EXPECT_EQ(payloads(25, {'A', 'B', 'C', 0xe4}), "A B C \xe4; A B C \xe4");
    EXPECT_EQ(payloads(29, {'A', 'B', 'C', 'D'}), "A B C; A B C");
}

TEST(CanAerospaceLine, DeliberateCharacterThatIsZeroEndsTheLine)
{
    EXPECT_EQ(payload(25, {'A', 0, 'C', 'D'}, decimal), "A ");
    EXPECT_EQ(payload(23, {0, 0, 0, 0}, decimal), "");
}

TEST(CanAerospaceLine, FloatsOfEverySize)
{
    EXPECT_EQ(payloads(2, {0xff, 0x7f, 0xff, 0xff}),
              "-340282346638528859811704183484516925440.000000; "
              "-340282346638528859811704183484516925440.000000");
    EXPECT_EQ(payload(2, {0x7f, 0x80, 0, 0}, decimal), "inf");
    EXPECT_EQ(payload(2, {0xff, 0x80, 0, 0}, decimal), "-inf");
    EXPECT_EQ(payload(2, {0x7f, 0xff, 0, 0}, decimal), "nan");
}

TEST(CanAerospaceLine, DeliberateUnknownTypesEndWithABlank)
{
    for (int code = 30; code < 256; ++code) {
        const auto byte = static_cast<std::uint8_t>(code);
        EXPECT_EQ(payloads(byte, {1, 2, 3, 250}), "1 2 3 250 ; 0x01 0x02 0x03 0xfa ") << code;
    }
}

TEST(CanAerospaceLine, FrameWithoutDataPrintsWhatItsDataAreaHolds)
{
    MessageCan frame = frameOf({5, 10, 0, 0, 77}, normalId);
    std::array<char, canAerospaceLineCapacity> buffer{};
    for (const std::uint32_t byteCount : {0U, 3U, 64U, 0xffffffffU}) {
        frame.setByteCount(byteCount);
        canAerospaceLine(buffer.data(), buffer.size(), frame, decimal);
        EXPECT_STREQ(buffer.data(), "NOD   5 UCHAR   0 000 | 77") << byteCount;
    }
}

TEST(CanAerospaceLine, AnyBufferSizeIsSafe)
{
    for (int code = 0; code < 32; ++code) {
        const EightBytes bytes{200, static_cast<std::uint8_t>(code), 3, 9, 0xff, 0x7f, 0xff, 0xff};
        const std::string whole = line(normalId, bytes, decimal);
        for (std::size_t capacity = 0; capacity < canAerospaceLineCapacity; ++capacity) {
            const std::string cut = line(normalId, bytes, decimal, capacity);
            ASSERT_EQ(cut, capacity > 0 ? whole.substr(0, capacity - 1) : "#") << code;
        }
    }
    EXPECT_EQ(canAerospaceLine(nullptr, 0, frameOf({}), decimal), 0);
}

// The payload as printf writes it.
std::string printedPayload(const EightBytes& b, bool hex)
{
    const auto word = static_cast<std::uint32_t>(test::reference::bigEndian(b, 4, 4));
    const auto number = static_cast<std::int32_t>(word);
    const auto first = static_cast<std::uint16_t>(test::reference::bigEndian(b, 4, 2));
    const auto second = static_cast<std::uint16_t>(test::reference::bigEndian(b, 6, 2));
    const auto signedFirst = static_cast<std::int16_t>(first);
    const auto signedSecond = static_cast<std::int16_t>(second);
    const std::array<std::int8_t, 4> s{
        static_cast<std::int8_t>(b[4]), static_cast<std::int8_t>(b[5]),
        static_cast<std::int8_t>(b[6]), static_cast<std::int8_t>(b[7])};
    switch (b[1]) {
    case 0:
        return "";
    case 1:
        return hex ? printed("$%08x", word) : printed("%d", number);
    case 2:
        return printed("%f", test::reference::ieeeSingle(word));
    case 3:
    case 4:
    case 5:
    case 21:
    case 22:
        return hex ? printed("0x%08x", word) : printed("%d", number);
    case 6:
        return hex ? printed("0x%04hx", signedFirst) : printed("%d", signedFirst);
    case 7:
        return printed("0x%04hx", first);
    case 8:
        return hex ? printed("0x%04hx", first) : printed("%d", first);
    case 9:
        return hex ? printed("0x%02hhx", s[0]) : printed("%d", s[0]);
    case 10:
        return hex ? printed("0x%hhx", b[4]) : printed("%d", b[4]);
    case 11:
        return hex ? printed("0x%02hhx", b[4]) : printed("%d", b[4]);
    case 12:
        return hex ? printed("0x%04hx 0x%04hx", signedFirst, signedSecond)
                   : printed("%d %d", signedFirst, signedSecond);
    case 13:
    case 14:
        return hex ? printed("0x%04hx 0x%04hx", first, second) : printed("%d %d", first, second);
    case 15:
        return hex ? printed("0x%02hx 0x%02hx 0x%02hx 0x%02hx", s[0], s[1], s[2], s[3])
                   : printed("%d %d %d %d", s[0], s[1], s[2], s[3]);
    case 16:
    case 17:
        return hex ? printed("0x%02hhx 0x%02hhx 0x%02hhx 0x%02hhx", b[4], b[5], b[6], b[7])
                   : printed("%d %d %d %d", b[4], b[5], b[6], b[7]);
    case 18:
        return hex ? printed("0x%02hhx 0x%02hhx", s[0], s[1]) : printed("%d %d", s[0], s[1]);
    case 19:
    case 20:
        return hex ? printed("0x%02hhx 0x%02hhx", b[4], b[5]) : printed("%d %d", b[4], b[5]);
    case 23:
        return printed("%c", b[4]);
    case 24:
        return printed("%c %c", b[4], b[5]);
    case 25:
        return printed("%c %c %c %c", b[4], b[5], b[6], b[7]);
    case 26:
        return hex ? printed("0x%02hhx 0x%02hhx 0x%02hhx", s[0], s[1], s[2])
                   : printed("%d %d %d", s[0], s[1], s[2]);
    case 27:
    case 28:
        return hex ? printed("0x%02hhx 0x%02hhx 0x%02hhx", b[4], b[5], b[6])
                   : printed("%d %d %d", b[4], b[5], b[6]);
    case 29:
        return printed("%c %c %c", b[4], b[5], b[6]);
    default:
        return hex ? printed("0x%02x 0x%02x 0x%02x 0x%02x ", b[4], b[5], b[6], b[7])
                   : printed("%d %d %d %d ", b[4], b[5], b[6], b[7]);
    }
}

const char* printedClass(std::uint32_t id)
{
    const std::array<std::uint32_t, 7> firsts{128, 200, 300, 1800, 1900, 2000, 2032};
    const std::array<const char*, 8> labels{"EED", "NSH", "UDH", "NOD", "UDL", "DSD", "NSL", "29B"};
    std::size_t index = 0;
    while (index < firsts.size() && id >= firsts[index]) {
        ++index;
    }
    return labels[index];
}

std::string printedLine(std::uint32_t id, const EightBytes& bytes, int numberType)
{
    const bool hex = numberType == hexadecimal;
    const std::array<const char*, 7> names{"IDS", "NSS", "DDS", "DUS", "SCS", "TIS", "FPS"};
    const std::string messageClass = printedClass(id);
    const bool isNodeService = messageClass == "NSH" || messageClass == "NSL";
    std::string service = hex ? printed("$%02X", bytes[2]) : printed("%d", bytes[2]);
    if (isNodeService && bytes[2] < names.size()) {
        service = names[bytes[2]];
    }
    const char* label =
        bytes[1] < canAerospaceTypes.size() ? canAerospaceTypes[bytes[1]].label : "UNKNOWN";
    return printed("%s %s %s %s %s | %s", messageClass.c_str(),
                   printed(hex ? "$%2X" : "%3d", bytes[0]).c_str(), printed("%-7s", label).c_str(),
                   service.c_str(), printed(hex ? "$%02X" : "%03d", bytes[3]).c_str(),
                   printedPayload(bytes, hex).c_str());
}

TEST(CanAerospaceLine, LinesAreThoseOfPrintf)
{
    const unsigned seed = std::random_device()();
    std::printf("seed %u\n", seed);
    std::mt19937 generator(seed);
    for (int i = 0; i < 60'000; ++i) {
        EightBytes bytes{};
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(generator());
        }
        if (i % 8 != 0) { // else the code, too, is any
            bytes[1] = static_cast<std::uint8_t>(i % 32);
            bytes[2] = static_cast<std::uint8_t>(bytes[2] % 10);
        }
        const auto random = static_cast<std::uint32_t>(generator());
        const std::uint32_t id = i % 5 == 0 ? random & 0x1fffffffU : random % 2100;
        for (const int numberType : {decimal, hexadecimal}) {
            const std::string text = line(id, bytes, numberType);
            ASSERT_EQ(text, printedLine(id, bytes, numberType)) << "seed " << seed << " id " << id;
            ASSERT_LE(text.size(), 73U);
        }
    }
}

TEST(CanAerospaceLine, TakesNoMemory)
{
    std::array<char, canAerospaceLineCapacity> buffer{};
    for (int code = 0; code < 256; ++code) {
        const MessageCan frame =
            frameOf({1, static_cast<std::uint8_t>(code), 3, 4, 0xff, 0x7f, 0xff, 0xff});
        for (const int numberType : {decimal, hexadecimal}) {
            const std::uint64_t before = test::allocationCount();
            canAerospaceLine(buffer.data(), buffer.size(), frame, numberType);
            EXPECT_EQ(test::allocationCount(), before) << code;
        }
    }
}

} // namespace
