#include "core/XmlHandler.h"

#include "core/Latin1.h"
#include "core/XmlFile.h"
#include "core/XmlText.h"

#include <cmath>

namespace zul {

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
    attribute.setValue(xmlCharacters(value));
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
    writeString(document, element, name, xmlDouble(value));
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
