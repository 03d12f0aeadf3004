#pragma once

#include "project/Object.h"
#include "project/ObjectTypeInfo.h"

#include <QString>

#include <map>
#include <memory>
#include <vector>

class ProfileStore;

/// The open document: it owns all objects, wires them, drives the interfaces, and is the project
/// file.
class Project
{
public:
    using Objects = std::map<int, std::unique_ptr<Object>>; ///< by object id
    using Types = std::map<ObjectType, ObjectTypeInfo>;

    /// Rectangle of the main window, in pixels.
    struct WindowRectangle
    {
        int x = 0;
        int y = 0;
        int width = 1024;
        int height = 768;
    };

    /// A file with more objects counts as one that cannot be read: each window is wired to each
    /// interface, and each open one is shown.
    static constexpr int maxObjects = 1000;

    /// Registers the types, loads all profiles if the user's settings want it, and opens
    /// `defaultFile`. If that is missing, the project is empty and its first save makes the file.
    Project(std::vector<ObjectTypeInfo> types, const QString& defaultFile);
    ~Project();
    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;

    /// A new object, wired and marked as a change; null for a type that is not registered. The
    /// project owns it.
    Object* createObject(ObjectType type);
    /// Destroys the object, whose window must be closed; false if the id is unknown.
    bool deleteObject(int id);
    /// False if the id is unknown.
    bool renameObject(int id, const QString& name);
    /// Polls every interface in ascending id.
    void poll();

    const Objects& objects() const { return m_objects; }
    /// The object, or null if the id is unknown.
    Object* object(int id) const;
    /// The interfaces in ascending id.
    const std::map<int, InterfaceObject*>& interfaces() const { return m_interfaces; }
    /// The registered types by number.
    const Types& types() const { return m_typesById; }

    /// The loaded profiles; they are those of the process and outlive the project.
    ProfileStore& profiles() const { return m_profiles; }

    bool isEdited() const { return m_edited; }
    void markEdited() { m_edited = true; }
    /// Path of the project file; empty for a new project.
    const QString& fileName() const { return m_fileName; }

    const WindowRectangle& windowRectangle() const { return m_window; }
    void setWindowRectangle(const WindowRectangle& rectangle) { m_window = rectangle; }

    /// Disconnects every open interface and destroys all objects. Object ids go on rising.
    void clear();
    /// Replaces the project by the file's. A file that cannot be read gives an empty project of
    /// that name; the result is always true.
    bool load(const QString& path);
    /// Writes the project, to its own file if `path` is empty, else under that name from now on. A
    /// failure to write is not reported; the result is always true. A file that could not be read
    /// before is kept beside the new one.
    bool save(const QString& path);

private:
    void insert(std::unique_ptr<Object> object, ObjectType type);
    void wire(Object& object);
    int objectCount(const QDomElement& root) const;
    void readObjects(const QDomElement& root);
    void readElement(const QDomElement& element);
    void readTopLevelWindow(const QDomElement& element);
    QDomDocument toDocument() const;

    ProfileStore& m_profiles;
    QString m_fileName;
    bool m_edited = false;
    Types m_typesById;
    std::map<QString, ObjectType> m_typesByTag;
    Objects m_objects;
    std::map<int, InterfaceObject*> m_interfaces;
    WindowRectangle m_window;
};
