#include "core/XmlText.h"

#include <array>
#include <charconv>
#include <limits>

namespace zul {

namespace {

// The characters of XML 1.0, production [2] Char; surrogates come in pairs.
bool isXmlCharacter(QChar character, QChar next, QChar previous)
{
    const ushort code = character.unicode();
    if (code < 0x20) {
        return code == '\t' || code == '\n' || code == '\r';
    }
    if (character.isHighSurrogate()) {
        return next.isLowSurrogate();
    }
    if (character.isLowSurrogate()) {
        return previous.isHighSurrogate();
    }
    return code != 0xFFFE && code != 0xFFFF;
}

} // namespace

QString xmlCharacters(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar next = i + 1 < text.size() ? text.at(i + 1) : QChar();
        const QChar previous = i > 0 ? text.at(i - 1) : QChar();
        if (isXmlCharacter(text.at(i), next, previous)) {
            result += text.at(i);
        }
    }
    return result;
}

QString xmlDouble(double value)
{
    // Deliberate: the text of "%.12f", also for -0.0, where QString::number loses the sign.
    constexpr int places = 12;
    constexpr std::size_t longest = std::numeric_limits<double>::max_exponent10 + places + 4;
    std::array<char, longest> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                      std::chars_format::fixed, places);
    return QString::fromLatin1(text.data(), static_cast<int>(result.ptr - text.data()));
}

} // namespace zul
