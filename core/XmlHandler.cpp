#include "core/XmlHandler.h"

#include "core/Latin1.h"
#include "core/XmlFile.h"

#include <array>
#include <charconv>
#include <cmath>
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

QString xmlText(const QString& text)
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

} // namespace

bool XmlHandler::readBool(const QDomNamedNodeMap& attributes, const QString& name, bool def)
{
    if (!attributes.contains(name)) {
        return def;
    }
    const QString text = attributes.namedItem(name).nodeValue();
    return text == QLatin1String("true") || text == QLatin1String("1");
}

int XmlHandler::readInt(const QDomNamedNodeMap& attributes, const QString& name, int def)
{
    return attributes.contains(name) ? attributes.namedItem(name).nodeValue().toInt() : def;
}

double XmlHandler::readDouble(const QDomNamedNodeMap& attributes, const QString& name, double def)
{
    if (!attributes.contains(name)) {
        return def;
    }
    const double value = attributes.namedItem(name).nodeValue().toDouble();
    return std::isfinite(value) ? value : 0.0; // toDouble takes "inf" and "nan"
}

QString XmlHandler::readString(const QDomNamedNodeMap& attributes, const QString& name,
                               const QString& def)
{
    return attributes.contains(name) ? attributes.namedItem(name).nodeValue() : def;
}

std::string XmlHandler::readStdString(const QDomNamedNodeMap& attributes, const QString& name,
                                      const std::string& def)
{
    return attributes.contains(name) ? toLatin1(attributes.namedItem(name).nodeValue()) : def;
}

void XmlHandler::writeString(QDomDocument& document, QDomElement& element, const QString& name,
                             const QString& value)
{
    QDomAttr attribute = document.createAttribute(name);
    attribute.setValue(xmlText(value));
    element.setAttributeNode(attribute);
}

void XmlHandler::writeString(QDomDocument& document, QDomElement& element, const QString& name,
                             const std::string& value)
{
    writeString(document, element, name, fromLatin1(value));
}

void XmlHandler::writeInt(QDomDocument& document, QDomElement& element, const QString& name,
                          int value)
{
    writeString(document, element, name, QString::number(value));
}

void XmlHandler::writeDouble(QDomDocument& document, QDomElement& element, const QString& name,
                             double value)
{
    // Deliberate: the text of "%.12f", also for -0.0, where QString::number loses the sign.
    constexpr int places = 12;
    constexpr std::size_t longest = std::numeric_limits<double>::max_exponent10 + places + 4;
    std::array<char, longest> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                      std::chars_format::fixed, places);
    writeString(document, element, name,
                QString::fromLatin1(text.data(), static_cast<int>(result.ptr - text.data())));
}

QDomElement XmlHandler::addElement(QDomDocument& document, QDomNode& parent, const QString& name)
{
    QDomElement element = document.createElement(name);
    parent.appendChild(element);
    return element;
}

bool XmlHandler::loadDocument(const QString& path, QDomDocument& document)
{
    return loadXmlFile(path, document) == XmlLoad::Loaded;
}

bool XmlHandler::saveDocument(const QDomDocument& document, const QString& path)
{
    return saveXmlFile(document, path);
}

} // namespace zul
