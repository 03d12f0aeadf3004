#pragma once

#include <array>
#include <cstdint>

/// How a Data Visualization window shows its value. The numbers are stored in project files.
enum class DialForm : std::int32_t {
    Discrete = 0, ///< lights
    Needle = 1,
    Numeric = 2
};

/// A form and its name in the selection.
struct DialFormText
{
    DialForm form;
    const char* text;
};

inline constexpr std::array<DialFormText, 3> dialForms{
    {{DialForm::Discrete, "Discrete"}, {DialForm::Needle, "Dial"}, {DialForm::Numeric, "Numeric"}}};

/// The form that a number of a project file stands for; any other is the first.
constexpr DialForm dialForm(std::int32_t number)
{
    for (const DialFormText& form : dialForms) {
        if (static_cast<std::int32_t>(form.form) == number) {
            return form.form;
        }
    }
    return DialForm::Discrete;
}
