#include "profile/ValueText.h"

#include "core/TextWriter.h"
#include "profile/ByteOrder.h"
#include "profile/DataTypes.h"
#include "profile/ProfileStore.h"
#include "profile/ValueCodec.h"

#include <algorithm>
#include <cstdio>
#include <optional>

namespace zul {

namespace {

void appendEnum(TextWriter& text, const MessageCan& message, const ProfileStore& store,
                const ProfileParameter& parameter)
{
    if (const std::optional<std::uint64_t> value = enumValue(message, parameter)) {
        const auto entry = numberOfBits<std::int32_t>(static_cast<std::uint32_t>(*value));
        // In the memory of the QString, which zul::toLatin1 would copy.
        text.append(store.enumText(parameter.enumId, entry).toLatin1().constData());
    }
}

void appendBytes(TextWriter& text, const MessageCan& message)
{
    constexpr std::int32_t count = 8;
    for (std::int32_t i = 0; i < count; ++i) {
        if (i > 0) {
            text.append(' ');
        }
        text.appendDecimal(message.msg()[i]);
    }
}

void appendDigit(TextWriter& text, int digit)
{
    constexpr int digits = 10;
    text.append(digit < digits ? static_cast<char>('0' + digit) : '-');
}

} // namespace

int textOf(char* buffer, std::size_t capacity, const MessageCan& message, const ProfileStore& store,
           const ProfileParameter& parameter)
{
    if (capacity == 0) {
        return 0;
    }
    const std::size_t room = std::min(capacity, valueTextCapacity);
    TextWriter text(buffer, room);
    switch (static_cast<ArincType>(parameter.dtc)) {
    case ArincType::NoData:
        text.append("NO DATA");
        break;
    case ArincType::Enum:
        appendEnum(text, message, store, parameter);
        break;
    case ArincType::AChar:
        text.append(static_cast<char>(static_cast<std::uint8_t>(arincValue(message, parameter))));
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
        appendBytes(text, message);
        break;
    case ArincType::Bool:
        text.append(arincValue(message, parameter) != 0.0 ? "true" : "false");
        break;
    case ArincType::Bcd:
        appendDigit(text, static_cast<int>(arincValue(message, parameter)));
        break;
    default:
        text.append("---");
    }
    return 0;
}

} // namespace zul
