#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace canmodule {

/// `text` without blanks round it.
std::string trimmed(const std::string& text);

/// The number that the program's editors read from the same text: base 16 after "0x", 8 after "0",
/// else 10. A negative number stands for its 32-bit pattern. Nothing if the text is no number or
/// too large.
std::optional<std::uint32_t> parseNumber(const std::string& text);

} // namespace canmodule
