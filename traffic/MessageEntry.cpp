#include "traffic/MessageEntry.h"

#include "profile/Arinc825Id.h"

#include <algorithm>

namespace messageentry {

namespace {

constexpr int heightOfTwoRows = 40;
constexpr int heightOfThreeRows = 60;
constexpr int heightOfFourRows = 80;

} // namespace

std::uint32_t boundedId(std::uint32_t id, std::uint32_t mode)
{
    return std::min(id,
                    isExtended(mode) ? zul::arinc825::maxExtendedId : zul::arinc825::maxStandardId);
}

int idEntryMaximum(std::uint32_t mode)
{
    return static_cast<int>(isExtended(mode) ? zul::arinc825::maxExtendedId + 1
                                             : zul::arinc825::maxStandardId);
}

int shownRows(std::uint32_t byteCount)
{
    int rows = 1;
    while (rows < payloadRows && byteCount > static_cast<std::uint32_t>(rows * bytesPerRow)) {
        ++rows;
    }
    return rows;
}

int editorHeight(std::uint32_t byteCount)
{
    switch (shownRows(byteCount)) {
    case 4:
        return heightOfFourRows;
    case 3:
        return heightOfThreeRows;
    default:
        return heightOfTwoRows;
    }
}

QString byteText(std::uint8_t value, std::int32_t numberType)
{
    return isHexadecimal(numberType) ? QString::asprintf("0x%02X", unsigned{value})
                                     : QString::asprintf("%d", int{value});
}

std::uint8_t boundedByte(qlonglong value)
{
    return static_cast<std::uint8_t>(std::clamp<qlonglong>(value, 0, 0xFF));
}

} // namespace messageentry
