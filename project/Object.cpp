#include "project/Object.h"

#include "project/ObjectWindow.h"

#include <algorithm>

namespace {

const QString windowTag = QStringLiteral("Window");
const QString nameAttribute = QStringLiteral("name");
const QString widthAttribute = QStringLiteral("width");
const QString heightAttribute = QStringLiteral("height");
const QString xAttribute = QStringLiteral("xPos");
const QString yAttribute = QStringLiteral("yPos");
const QString openAttribute = QStringLiteral("open");

int nextId()
{
    static int counter = 0;
    return counter++;
}

} // namespace

Object::Object(ObjectType type) : m_type(type), m_id(nextId()) {}

Object::~Object()
{
    for (const auto& input : m_inputs) {
        input.second->removeOutput(this);
    }
    for (const auto& output : m_outputs) {
        output.second->removeInput(this);
    }
    if (m_dialog != nullptr) {
        m_dialog->setObject(nullptr);
    }
}

void Object::writeXml(QDomDocument&, QDomElement&) {}

void Object::readXml(const QDomNode&) {}

void Object::addOutput(Object* object)
{
    if (object != nullptr) {
        m_outputs[object->id()] = object;
        outputsChanged();
        object->addInput(this);
    }
}

void Object::removeOutput(Object* object)
{
    if (object != nullptr) {
        m_outputs.erase(object->id());
        outputsChanged();
    }
}

void Object::addInput(Object* object)
{
    if (object != nullptr) {
        m_inputs[object->id()] = object;
    }
}

void Object::removeInput(Object* object)
{
    if (object != nullptr) {
        m_inputs.erase(object->id());
    }
}

void Object::receive(MessageContainer& batch)
{
    if (m_dialog != nullptr) {
        m_dialog->receive(batch);
    }
}

void Object::send(MessageContainer& batch)
{
    for (std::size_t next = 0; next < m_receivers.size();) {
        Object* const receiver = m_receivers[next];
        const int id = receiver->id();
        const std::uint32_t changesBefore = m_outputChanges;
        receiver->receive(batch);
        ++next;
        if (m_outputChanges != changesBefore) {
            // A window may delete objects while it handles its batch: go on behind this one's id.
            next = static_cast<std::size_t>(
                std::distance(m_outputs.begin(), m_outputs.upper_bound(id)));
        }
    }
}

void Object::outputsChanged()
{
    ++m_outputChanges;
    m_receivers.clear();
    for (const auto& output : m_outputs) {
        m_receivers.push_back(output.second);
    }
}

InterfaceObject* Object::asInterface()
{
    return nullptr;
}

void Object::setPosition(int xPos, int yPos)
{
    m_xPos = xPos;
    m_yPos = yPos;
}

void Object::setSize(int width, int height)
{
    m_width = width;
    m_height = height;
}

void Object::writeWindow(QDomDocument& document, QDomElement& element) const
{
    QDomElement window = addElement(document, element, windowTag);
    writeString(document, window, nameAttribute, m_name);
    writeInt(document, window, widthAttribute, m_width);
    writeInt(document, window, heightAttribute, m_height);
    writeInt(document, window, xAttribute, m_xPos);
    writeInt(document, window, yAttribute, m_yPos);
    writeInt(document, window, openAttribute, m_dialog != nullptr ? 1 : 0);
}

void Object::readWindow(const QDomElement& element)
{
    if (element.tagName() != windowTag) {
        return;
    }
    const QDomNamedNodeMap attributes = element.attributes();
    m_name = readString(attributes, nameAttribute, QString());
    m_width = readInt(attributes, widthAttribute, 0);
    m_height = readInt(attributes, heightAttribute, 0);
    m_xPos = readInt(attributes, xAttribute, 0);
    m_yPos = readInt(attributes, yAttribute, 0);
    m_open = readInt(attributes, openAttribute, 0) != 0;
}

void Object::settingsChanged()
{
    if (m_dialog != nullptr) {
        m_dialog->updateDialog();
    }
}
