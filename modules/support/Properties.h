#pragma once

#include "message/DeviceInfo.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace canmodule {

/// A property of a device, as the editors show it.
inline DeviceProperty property(const char* label, const char* key, PropertyKind kind,
                               std::vector<PropertyChoice> choices = {})
{
    return {label, key, {}, kind, std::move(choices), {}};
}

/// Choices that are numbered from 0.
template <std::size_t Size>
std::vector<PropertyChoice> numberedChoices(const std::array<const char*, Size>& names)
{
    std::vector<PropertyChoice> choices;
    choices.reserve(Size);
    for (const char* name : names) {
        choices.push_back({name, static_cast<std::int32_t>(choices.size())});
    }
    return choices;
}

} // namespace canmodule
