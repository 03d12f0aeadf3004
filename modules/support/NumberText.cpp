#include "modules/support/NumberText.h"

#include <charconv>
#include <limits>
#include <system_error>

namespace canmodule {

std::string trimmed(const std::string& text)
{
    constexpr const char* blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::optional<std::uint32_t> parseNumber(const std::string& text)
{
    const std::string digits = trimmed(text);
    const char* begin = digits.c_str();
    const char* const end = begin + digits.size();
    const bool negative = begin != end && *begin == '-';
    if (negative) {
        ++begin;
    }
    int base = 10;
    if (end - begin > 2 && begin[0] == '0' && (begin[1] == 'x' || begin[1] == 'X')) {
        base = 16;
        begin += 2;
    } else if (end - begin > 1 && begin[0] == '0') {
        base = 8;
    }
    std::uint64_t number = 0;
    const auto [stop, error] = std::from_chars(begin, end, number, base);
    constexpr std::uint64_t mostNegative = 0x80000000U;
    constexpr std::uint64_t largest = std::numeric_limits<std::uint32_t>::max();
    if (error != std::errc() || stop != end || number > (negative ? mostNegative : largest)) {
        return std::nullopt;
    }
    const auto pattern = static_cast<std::uint32_t>(number);
    return negative ? 0U - pattern : pattern;
}

} // namespace canmodule
