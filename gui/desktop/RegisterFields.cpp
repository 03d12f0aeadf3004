#include "gui/desktop/RegisterFields.h"

#include <algorithm>

namespace gui {

namespace {

constexpr RegisterLayout nbtp{"NBTP",
                              {{{"NSJW", 0, 127, 25, 7},
                                {"NBRP", 0, 511, 16, 9},
                                {"NTSEG1", 1, 255, 8, 8},
                                {"NTSEG2", 1, 127, 0, 7}}},
                              4};

constexpr RegisterLayout dbtp{"DBTP",
                              {{{"TDC", 0, 1, 23, 1},
                                {"DBRP", 0, 31, 16, 5},
                                {"DTSEG1", 0, 31, 8, 5},
                                {"DTSEG2", 0, 15, 4, 4},
                                {"DSJW", 0, 15, 0, 4}}},
                              5};

constexpr RegisterLayout tdcr{"TDCR", {{{"TDCO", 0, 127, 8, 7}, {"TDCF", 0, 127, 0, 7}}}, 2};

constexpr std::uint32_t maskOf(const RegisterField& field)
{
    return (std::uint32_t{1} << static_cast<unsigned>(field.bits)) - 1U;
}

} // namespace

const RegisterLayout* registerLayout(PropertyKind kind)
{
    switch (kind) {
    case PropertyKind::Nbtp:
        return &nbtp;
    case PropertyKind::Dbtp:
        return &dbtp;
    case PropertyKind::Tdcr:
        return &tdcr;
    default:
        return nullptr;
    }
}

std::vector<int> splitRegister(const RegisterLayout& layout, std::uint32_t value)
{
    std::vector<int> values;
    for (std::size_t i = 0; i < layout.fieldCount; ++i) {
        const RegisterField& field = layout.fields[i];
        values.push_back(
            static_cast<int>((value >> static_cast<unsigned>(field.shift)) & maskOf(field)));
    }
    return values;
}

std::uint32_t composeRegister(const RegisterLayout& layout, const std::vector<int>& values)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < std::min(layout.fieldCount, values.size()); ++i) {
        const RegisterField& field = layout.fields[i];
        value |= (static_cast<std::uint32_t>(values[i]) & maskOf(field))
                 << static_cast<unsigned>(field.shift);
    }
    return value;
}

} // namespace gui
