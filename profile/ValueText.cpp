#include "profile/ValueText.h"

#include "core/Latin1.h"
#include "profile/DataTypes.h"
#include "profile/ProfileStore.h"
#include "profile/ValueCodec.h"

#include <algorithm>
#include <cstdio>

namespace zul {

namespace {

/// The text of a parameter of type ENUM; empty if it has no bits.
std::string enumText(const MessageCan& message, const ProfileStore& store,
                     const ProfileParameter& parameter)
{
    const std::optional<std::uint64_t> value = enumValue(message, parameter);
    if (!value) {
        return {};
    }
    const auto entry = static_cast<std::int32_t>(static_cast<std::uint32_t>(*value));
    return toLatin1(store.enumText(parameter.enumId, entry));
}

void writeBytes(char* buffer, std::size_t capacity, const MessageCan& message)
{
    const std::uint8_t* bytes = &message.msg()[0];
    std::snprintf(buffer, capacity, "%d %d %d %d %d %d %d %d", bytes[0], bytes[1], bytes[2],
                  bytes[3], bytes[4], bytes[5], bytes[6], bytes[7]);
}

void writeDigit(char* buffer, std::size_t capacity, int digit)
{
    constexpr int digits = 10;
    if (digit < digits) {
        std::snprintf(buffer, capacity, "%d", digit);
    } else {
        std::snprintf(buffer, capacity, "-");
    }
}

} // namespace

int textOf(char* buffer, std::size_t capacity, const MessageCan& message, const ProfileStore& store,
           const ProfileParameter& parameter)
{
    const std::size_t room = std::min(capacity, valueTextCapacity);
    switch (static_cast<ArincType>(parameter.dtc)) {
    case ArincType::NoData:
        std::snprintf(buffer, room, "NO DATA");
        break;
    case ArincType::Enum:
        std::snprintf(buffer, room, "%s", enumText(message, store, parameter).c_str());
        break;
    case ArincType::AChar:
        std::snprintf(buffer, room, "%c", static_cast<int>(arincValue(message, parameter)));
        break;
    case ArincType::Char:
    case ArincType::UChar:
    case ArincType::Short:
    case ArincType::UShort:
    case ArincType::Long:
    case ArincType::ULong:
    case ArincType::Float:
    case ArincType::Long64:
    case ArincType::ULong64:
    case ArincType::Double:
        std::snprintf(buffer, room, "%f", arincValue(message, parameter));
        break;
    case ArincType::Opaque:
        writeBytes(buffer, room, message);
        break;
    case ArincType::Bool:
        std::snprintf(buffer, room, "%s", arincValue(message, parameter) != 0.0 ? "true" : "false");
        break;
    case ArincType::Bcd:
        writeDigit(buffer, room, static_cast<int>(arincValue(message, parameter)));
        break;
    default:
        std::snprintf(buffer, room, "---");
    }
    return 0;
}

} // namespace zul
