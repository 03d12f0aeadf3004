#pragma once

#include "message/DeviceInfo.h"

#include <array>
#include <cstdint>
#include <vector>

namespace gui {

/// One bit field of a bit-timing register, with the range that may be entered.
struct RegisterField
{
    const char* label;
    int minimum;
    int maximum;
    int shift; ///< position of the lowest bit
    int bits;  ///< width
};

/// A bit-timing register of the Bosch M_CAN controller. Field values are those stored in the
/// register, not plus one.
struct RegisterLayout
{
    static constexpr std::size_t maxFields = 5;

    const char* name;
    std::array<RegisterField, maxFields> fields;
    std::size_t fieldCount;
};

/// The layout that properties of the kind show, or null for a kind that is no register.
const RegisterLayout* registerLayout(PropertyKind kind);

/// The values of all fields of a register, in the order of the layout.
std::vector<int> splitRegister(const RegisterLayout& layout, std::uint32_t value);

/// The register made of these field values, each cut to its width. Missing values count as 0.
std::uint32_t composeRegister(const RegisterLayout& layout, const std::vector<int>& values);

} // namespace gui
