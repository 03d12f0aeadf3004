#include "measure/ParameterPositions.h"

#include "profile/DataTypes.h"

#include <algorithm>
#include <array>

using zul::ArincType;

namespace {

using Numbers = std::vector<std::uint32_t>;

constexpr std::uint32_t topBit = 7;
constexpr PayloadPosition wholeFrame{7, 0, 0, 7};

// By the index of `zul::rawSelections`.
constexpr std::array<PayloadPosition, 18> rawPositions{{{0, 0, 0, 7},
                                                        {1, 0, 1, 7},
                                                        {2, 0, 2, 7},
                                                        {3, 0, 3, 7},
                                                        {4, 0, 4, 7},
                                                        {5, 0, 5, 7},
                                                        {6, 0, 6, 7},
                                                        {7, 0, 7, 7},
                                                        {1, 0, 0, 7},
                                                        {3, 0, 2, 7},
                                                        {5, 0, 4, 7},
                                                        {7, 0, 6, 7},
                                                        {3, 0, 0, 7},
                                                        {7, 0, 4, 7},
                                                        {3, 0, 0, 7},
                                                        {7, 0, 4, 7},
                                                        {7, 0, 0, 7},
                                                        {7, 0, 0, 7}}};
static_assert(rawPositions.size() == zul::rawSelections.size());

Numbers allNumbers()
{
    return {0, 1, 2, 3, 4, 5, 6, 7};
}

zul::PositionRule ruleOf(std::uint32_t code)
{
    return code < zul::arincTypes.size() ? zul::arincTypes[code].positionRule
                                         : zul::PositionRule::Free;
}

PayloadPosition naturalArincPosition(std::uint32_t code)
{
    switch (ruleOf(code)) {
    case zul::PositionRule::OneByte:
        return {0, 0, 0, topBit};
    case zul::PositionRule::TwoBytes:
        return {1, 0, 0, topBit};
    case zul::PositionRule::FourBytes:
        return {3, 0, 0, topBit};
    case zul::PositionRule::EightBytes:
        return wholeFrame;
    default:
        break;
    }
    constexpr std::uint32_t topOfNibble = 3;
    return code == static_cast<std::uint32_t>(ArincType::Bcd)
               ? PayloadPosition{0, 0, 0, topOfNibble}
               : PayloadPosition{};
}

std::optional<PayloadPosition> naturalCanAerospacePosition(std::uint32_t code)
{
    if (code >= zul::canAerospaceTypes.size()) {
        return std::nullopt;
    }
    constexpr auto noData = 0U;
    if (code == noData) {
        return PayloadPosition{};
    }
    // ERROR has a payload of its own, though its frames are as short as the header.
    constexpr auto error = 1U;
    constexpr std::uint32_t lastByte = 7;
    constexpr std::uint32_t payloadByte = 4;
    const auto count = static_cast<std::uint32_t>(zul::canAerospaceTypes[code].byteCount);
    return PayloadPosition{code == error ? lastByte : count - 1, 0, payloadByte, topBit};
}

PositionChoices arincChoices(std::uint32_t code)
{
    switch (ruleOf(code)) {
    case zul::PositionRule::Zero:
        return {};
    case zul::PositionRule::OneByte:
        return {allNumbers(), {0}, allNumbers(), {topBit}, true};
    case zul::PositionRule::TwoBytes:
        return {{1, 3, 5, 7}, {0}, {0, 2, 4, 6}, {topBit}, true};
    case zul::PositionRule::FourBytes:
        return {{3, 7}, {0}, {0, 4}, {topBit}, true};
    case zul::PositionRule::EightBytes:
        return {{7}, {0}, {0}, {topBit}};
    case zul::PositionRule::Free:
        break;
    }
    if (code == static_cast<std::uint32_t>(ArincType::Bool)) {
        return {allNumbers(), allNumbers(), allNumbers(), allNumbers(), true, true};
    }
    if (code == static_cast<std::uint32_t>(ArincType::Bcd)) {
        return {allNumbers(), {0, 4}, allNumbers(), {3, 7}, true, true};
    }
    return {allNumbers(), allNumbers(), allNumbers(), allNumbers(), true, true, true};
}

PayloadPosition wholeBytes(std::uint32_t startByte, std::uint32_t count)
{
    return {startByte, 0, startByte - std::min(startByte, count - 1), topBit};
}

} // namespace

std::vector<DataTypeChoice> dataTypeChoices(ParameterKind kind)
{
    std::vector<DataTypeChoice> choices;
    switch (kind) {
    case ParameterKind::Arinc825:
        for (const auto& type : zul::arincTypes) {
            choices.push_back({type.name, static_cast<std::uint32_t>(type.type)});
        }
        break;
    case ParameterKind::CanAerospace:
        for (std::uint32_t code = 0; code < zul::canAerospaceTypes.size(); ++code) {
            choices.push_back({zul::canAerospaceTypes[code].selectionName, code});
        }
        break;
    case ParameterKind::Raw:
        for (const std::uint32_t code : zul::rawSelectionOrder) {
            choices.push_back({zul::rawSelections[code], code});
        }
        break;
    }
    return choices;
}

std::optional<PayloadPosition> naturalPosition(ParameterKind kind, std::uint32_t code)
{
    switch (kind) {
    case ParameterKind::Arinc825:
        return naturalArincPosition(code);
    case ParameterKind::CanAerospace:
        return naturalCanAerospacePosition(code);
    case ParameterKind::Raw:
        if (code < rawPositions.size()) {
            return rawPositions[code];
        }
        break;
    }
    return std::nullopt;
}

PositionChoices positionChoices(ParameterKind kind, std::uint32_t code)
{
    if (kind == ParameterKind::Arinc825) {
        return arincChoices(code);
    }
    return {allNumbers(), allNumbers(), allNumbers(), allNumbers()};
}

PayloadPosition adjustedPosition(ParameterKind kind, std::uint32_t code, PayloadPosition position)
{
    if (kind != ParameterKind::Arinc825) {
        return position;
    }
    switch (ruleOf(code)) {
    case zul::PositionRule::OneByte:
        return wholeBytes(position.startByte, 1);
    case zul::PositionRule::TwoBytes:
        return wholeBytes(position.startByte, 2);
    case zul::PositionRule::FourBytes:
        return wholeBytes(position.startByte, 4);
    case zul::PositionRule::EightBytes:
        return wholeFrame;
    default:
        break;
    }
    if (code == static_cast<std::uint32_t>(ArincType::Bool)) {
        position.endByte = position.startByte;
        position.endBit = position.startBit;
    } else if (code == static_cast<std::uint32_t>(ArincType::Bcd)) {
        constexpr std::uint32_t nibble = 4;
        position.endByte = position.startByte;
        position.endBit = position.startBit + nibble - 1;
    }
    return position;
}

PayloadPosition positionOf(const ProfileParameter& parameter)
{
    return {parameter.sppByte, parameter.sppBit, parameter.eppByte, parameter.eppBit};
}

void setPosition(ProfileParameter& parameter, const PayloadPosition& position)
{
    parameter.sppByte = position.startByte;
    parameter.sppBit = position.startBit;
    parameter.eppByte = position.endByte;
    parameter.eppBit = position.endBit;
}
