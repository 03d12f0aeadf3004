#pragma once

#include "core/XmlHandler.h"
#include "project/ObjectTypes.h"

#include <QString>

#include <cstdint>
#include <map>
#include <vector>

class InterfaceObject;
class MessageContainer;
class ObjectWindow;
class Project;
class QWidget;

/// One object of a project: a CAN interface, or the settings of a tool window. It carries identity,
/// window geometry and wiring, and exists whether or not its window is open.
///
/// Operations that take a pointer ignore null.
class Object : public zul::XmlHandler
{
public:
    using Wires = std::map<int, Object*>; ///< by object id

    static constexpr int defaultWidth = 600;
    static constexpr int defaultHeight = 400;

    explicit Object(ObjectType type);
    /// Takes itself out of the wiring and tells an open window that it is gone.
    virtual ~Object();
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    /// Makes the object's window, with title and icon; null if its type has none.
    virtual ObjectWindow* createDialog(QWidget* parent) = 0;
    /// Appends the object's element to `parent`.
    virtual void writeXml(QDomDocument& document, QDomElement& parent);
    /// Reads the object's element.
    virtual void readXml(const QDomNode& node);
    virtual void addOutput(Object* object);
    virtual void removeOutput(Object* object);
    virtual void addInput(Object* object);
    virtual void removeInput(Object* object);
    /// Hands the batch to the window, if one is open.
    virtual void receive(MessageContainer& batch);
    /// Gives the batch to every output, in ascending id.
    virtual void send(MessageContainer& batch);

    /// This object if it is a CAN interface, else null.
    virtual InterfaceObject* asInterface();

    Project* project() const { return m_project; }
    ObjectType type() const { return m_type; }
    /// Identity within the process; never used twice.
    int id() const { return m_id; }
    const Wires& outputs() const { return m_outputs; }
    const Wires& inputs() const { return m_inputs; }

    /// The open window, or null.
    ObjectWindow* dialog() const { return m_dialog; }
    void setDialog(ObjectWindow* dialog) { m_dialog = dialog; }

    const QString& name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }
    /// Whether the window is to be opened with the project. Only read from the file; what the file
    /// tells at the next save is whether a window exists then.
    bool isOpen() const { return m_open; }
    void setOpen(bool open) { m_open = open; }

    /// Geometry of the window's frame in the desktop, in pixels.
    int xPos() const { return m_xPos; }
    int yPos() const { return m_yPos; }
    int width() const { return m_width; }
    int height() const { return m_height; }
    void setPosition(int xPos, int yPos);
    void setSize(int width, int height);

protected:
    /// Writes the child `Window`, which stands first in every object's element.
    void writeWindow(QDomDocument& document, QDomElement& element) const;
    void readWindow(const QDomElement& element);
    /// Tells an open window that the settings have changed.
    void settingsChanged();

private:
    void outputsChanged();

    friend class Project; // gives project and type

    Project* m_project = nullptr;
    Wires m_outputs;
    Wires m_inputs;
    // The outputs once more, in the same order: walking the tree costs more than what most windows
    // do with a batch that is not theirs.
    std::vector<Object*> m_receivers;
    std::uint32_t m_outputChanges = 0;
    ObjectWindow* m_dialog = nullptr;
    ObjectType m_type;
    int m_id;
    QString m_name = QStringLiteral("unnamed");
    bool m_open = true;
    int m_xPos = 0;
    int m_yPos = 0;
    int m_width = defaultWidth;
    int m_height = defaultHeight;
};
