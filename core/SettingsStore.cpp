#include "core/SettingsStore.h"

#include "core/Latin1.h"
#include "core/XmlFile.h"
#include "core/XmlHandler.h"

namespace {

const QString rootTag = QStringLiteral("Zul");
const QString propertyTag = QStringLiteral("Property");
const QString idAttribute = QStringLiteral("id");
const QString valueAttribute = QStringLiteral("value");

} // namespace

SettingsStore& SettingsStore::instance()
{
    static auto* store = new SettingsStore; // lives until process exit
    return *store;
}

void SettingsStore::setFile(const QString& path)
{
    m_path = path;
}

void SettingsStore::load()
{
    QDomDocument document;
    zul::loadXmlFile(m_path, document);
    const QDomElement root = document.documentElement();
    for (QDomElement child = root.firstChildElement(propertyTag); !child.isNull();
         child = child.nextSiblingElement(propertyTag)) {
        m_values[child.attribute(idAttribute)] = child.attribute(valueAttribute);
    }
}

void SettingsStore::save()
{
    QDomDocument document;
    QDomElement root = zul::XmlHandler::addElement(document, document, rootTag);
    for (const auto& [key, value] : m_values) {
        if (!value.isEmpty()) {
            QDomElement property = zul::XmlHandler::addElement(document, root, propertyTag);
            zul::XmlHandler::writeString(document, property, idAttribute, key);
            zul::XmlHandler::writeString(document, property, valueAttribute, value);
        }
    }
    zul::XmlHandler::saveDocument(document, m_path);
}

int SettingsStore::integer(const QString& key, int def) const
{
    const auto found = m_values.find(key);
    return found != m_values.end() ? zul::leadingInt(found->second) : def;
}

QString SettingsStore::string(const QString& key, const QString& def) const
{
    const auto found = m_values.find(key);
    return found != m_values.end() ? found->second : def;
}

void SettingsStore::setInteger(const QString& key, int value)
{
    m_values[key] = QString::number(value);
}

void SettingsStore::setString(const QString& key, const QString& value)
{
    m_values[key] = value;
}

void SettingsStore::reset()
{
    *this = SettingsStore();
}
