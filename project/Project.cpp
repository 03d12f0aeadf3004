#include "project/Project.h"

#include "core/Settings.h"
#include "core/SettingsStore.h"
#include "core/XmlFile.h"
#include "profile/ProfileStore.h"
#include "project/InterfaceObject.h"

#include <algorithm>
#include <utility>

namespace {

const QString rootTag = QStringLiteral("ZUL");
const QString versionTag = QStringLiteral("Version");
const QString idAttribute = QStringLiteral("id");
const QString topLevelTag = QStringLiteral("TopLevelWindow");
const QString xAttribute = QStringLiteral("x");
const QString yAttribute = QStringLiteral("y");
const QString widthAttribute = QStringLiteral("width");
const QString heightAttribute = QStringLiteral("height");

constexpr int formatVersion = 1;
constexpr int minimumExtent = 100; // of the main window, in pixels

using Xml = zul::XmlHandler;

} // namespace

Project::Project(std::vector<ObjectTypeInfo> types, const QString& defaultFile)
    : m_profiles(ProfileStore::instance())
{
    for (ObjectTypeInfo& info : types) {
        m_typesByTag[info.tag] = info.type;
        m_typesById[info.type] = std::move(info);
    }
    if (SettingsStore::instance().integer(QLatin1String(zul::setting::autoLoadProfile), 0) != 0) {
        m_profiles.loadAll();
    }
    load(defaultFile);
}

Project::~Project()
{
    clear();
}

Object* Project::createObject(ObjectType type)
{
    const auto found = m_typesById.find(type);
    if (found == m_typesById.end()) {
        return nullptr;
    }
    std::unique_ptr<Object> object = found->second.factory();
    Object* const result = object.get();
    insert(std::move(object), type);
    m_edited = true;
    return result;
}

bool Project::deleteObject(int id)
{
    const auto found = m_objects.find(id);
    if (found == m_objects.end()) {
        return false;
    }
    m_edited = true;
    m_interfaces.erase(id);
    m_objects.erase(found);
    return true;
}

bool Project::renameObject(int id, const QString& name)
{
    Object* const found = object(id);
    if (found == nullptr) {
        return false;
    }
    found->setName(name);
    m_edited = true;
    return true;
}

void Project::poll()
{
    // By id and not by iterator: a window may delete objects while it handles its batch.
    for (auto next = m_interfaces.begin(); next != m_interfaces.end();) {
        const int id = next->first;
        next->second->poll();
        next = m_interfaces.upper_bound(id);
    }
}

Object* Project::object(int id) const
{
    const auto found = m_objects.find(id);
    return found != m_objects.end() ? found->second.get() : nullptr;
}

void Project::clear()
{
    for (const auto& interface : m_interfaces) {
        if (interface.second->status() != DeviceStatus::Closed) {
            interface.second->disconnect();
        }
    }
    m_interfaces.clear();
    while (!m_objects.empty()) {
        m_objects.erase(m_objects.begin());
    }
    m_fileName.clear();
    m_edited = false;
}

bool Project::load(const QString& path)
{
    QString fileName = path; // it may be this project's own, which clear() empties
    clear();
    m_fileName = std::move(fileName);
    m_window = WindowRectangle();
    QDomDocument document;
    zul::loadXmlFile(m_fileName, document);
    const QDomElement root = document.documentElement();
    if (objectCount(root) > maxObjects) {
        zul::rememberBroken(m_fileName);
    } else {
        readObjects(root);
    }
    m_edited = false;
    m_window.width = std::max(m_window.width, minimumExtent);
    m_window.height = std::max(m_window.height, minimumExtent);
    return true;
}

bool Project::save(const QString& path)
{
    if (!path.isEmpty() && path != m_fileName) {
        m_fileName = path;
    }
    Xml::saveDocument(toDocument(), m_fileName);
    m_edited = false;
    return true;
}

void Project::insert(std::unique_ptr<Object> object, ObjectType type)
{
    object->m_project = this;
    object->m_type = type;
    Object& inserted = *object;
    m_objects[inserted.id()] = std::move(object);
    if (InterfaceObject* interface = inserted.asInterface()) {
        m_interfaces[inserted.id()] = interface;
    }
    wire(inserted);
}

void Project::wire(Object& object)
{
    // Interfaces and all other objects form a complete bipartite graph.
    const bool isInterface = object.asInterface() != nullptr;
    for (const auto& entry : m_objects) {
        Object& other = *entry.second;
        if ((other.asInterface() != nullptr) != isInterface) {
            object.addOutput(&other);
            other.addOutput(&object);
        }
    }
}

int Project::objectCount(const QDomElement& root) const
{
    int count = 0;
    for (QDomElement element = root.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        count += static_cast<int>(m_typesByTag.count(element.tagName()));
    }
    return count;
}

void Project::readObjects(const QDomElement& root)
{
    for (QDomElement element = root.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        readElement(element);
    }
}

void Project::readElement(const QDomElement& element)
{
    const auto found = m_typesByTag.find(element.tagName());
    if (found == m_typesByTag.end()) {
        if (element.tagName() == topLevelTag) {
            readTopLevelWindow(element);
        }
        return;
    }
    const ObjectTypeInfo& info = m_typesById.at(found->second);
    std::unique_ptr<Object> object = info.factory();
    object->m_project = this;
    object->m_type = info.type;
    object->readXml(element);
    insert(std::move(object), info.type);
}

void Project::readTopLevelWindow(const QDomElement& element)
{
    const QDomNamedNodeMap attributes = element.attributes();
    m_window.x = Xml::readInt(attributes, xAttribute, 0);
    m_window.y = Xml::readInt(attributes, yAttribute, 0);
    m_window.width = Xml::readInt(attributes, widthAttribute, 0);
    m_window.height = Xml::readInt(attributes, heightAttribute, 0);
}

QDomDocument Project::toDocument() const
{
    QDomDocument document;
    QDomElement root = Xml::addElement(document, document, rootTag);
    QDomElement version = Xml::addElement(document, root, versionTag);
    Xml::writeInt(document, version, idAttribute, formatVersion);
    QDomElement window = Xml::addElement(document, root, topLevelTag);
    Xml::writeInt(document, window, xAttribute, m_window.x);
    Xml::writeInt(document, window, yAttribute, m_window.y);
    Xml::writeInt(document, window, widthAttribute, m_window.width);
    Xml::writeInt(document, window, heightAttribute, m_window.height);
    for (const auto& entry : m_objects) {
        entry.second->writeXml(document, root);
    }
    return document;
}
