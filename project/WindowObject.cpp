#include "project/WindowObject.h"

#include "project/WindowMakers.h"

#include <utility>
#include <vector>

namespace {

const QString windowTag = QStringLiteral("Window");
const QString modeTag = QStringLiteral("Mode");
const QString filterTag = QStringLiteral("Filter");
const QString filterIdTag = QStringLiteral("FilterId");
const QString idAttribute = QStringLiteral("id");

} // namespace

WindowObject::WindowObject(ObjectType type) : Object(type) {}

WindowObject::~WindowObject() = default;

ObjectWindow* WindowObject::createDialog(QWidget* parent)
{
    return WindowMakers::instance().make(*this, parent);
}

void WindowObject::writeXml(QDomDocument& document, QDomElement& parent)
{
    const ObjectTypeTexts* texts = findObjectType(type());
    if (texts == nullptr) {
        return;
    }
    QDomElement element = addElement(document, parent, QString::fromLatin1(texts->tag));
    writeWindow(document, element);
    RecordWriter mode(document, addElement(document, element, modeTag));
    writeMode(mode);
    writeChildren(document, element);
    if (hasFilter()) {
        writeFilter(document, element);
    }
    writeChildrenAfterFilter(document, element);
}

void WindowObject::readXml(const QDomNode& node)
{
    for (QDomElement child = node.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const QString tag = child.tagName();
        if (tag == windowTag) {
            readWindow(child);
        } else if (tag == modeTag) {
            RecordReader mode(child);
            readMode(mode);
        } else if (tag == filterTag) {
            readFilter(child);
        } else {
            readChild(child);
        }
    }
    settingsChanged();
}

int WindowObject::recordVersion() const
{
    return 1;
}

bool WindowObject::hasFilter() const
{
    return true;
}

void WindowObject::writeChildren(QDomDocument&, QDomElement&) const {}

void WindowObject::writeChildrenAfterFilter(QDomDocument&, QDomElement&) const {}

void WindowObject::readChild(const QDomElement&) {}

void WindowObject::writeFilter(QDomDocument& document, QDomElement& element) const
{
    QDomElement filter = addElement(document, element, filterTag);
    RecordWriter writer(document, filter);
    writer.field("on", m_filter.isOn());
    writer.field("type", m_filter.type());
    writer.field("minId", m_filter.minId());
    writer.field("maxId", m_filter.maxId());
    for (const std::uint32_t id : m_filter.ids()) {
        RecordWriter(document, addElement(document, filter, filterIdTag)).field("id", id);
    }
}

void WindowObject::readFilter(const QDomElement& element)
{
    bool on = false;
    std::int32_t type = 0;
    std::int32_t minId = 0;
    std::int32_t maxId = 0;
    RecordReader reader(element);
    reader.field("on", on);
    reader.field("type", type);
    reader.field("minId", minId);
    reader.field("maxId", maxId);
    // A fresh record, so that bounds of before cannot swap with those of the file.
    m_filter = Filter();
    m_filter.setOn(on);
    m_filter.setType(type);
    m_filter.setMin(minId);
    m_filter.setMax(maxId);
    std::vector<std::uint32_t> ids;
    for (QDomElement child = element.firstChildElement(filterIdTag); !child.isNull();
         child = child.nextSiblingElement(filterIdTag)) {
        ids.push_back(static_cast<std::uint32_t>(readInt(child.attributes(), idAttribute, 0)));
    }
    m_filter.setIds(std::move(ids));
}
