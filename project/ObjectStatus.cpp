#include "project/ObjectStatus.h"

#include "project/WindowMakers.h"

ObjectStatus::ObjectStatus() : Object(ObjectType::Status) {}

ObjectStatus::~ObjectStatus() = default;

std::unique_ptr<Object> ObjectStatus::create()
{
    return std::make_unique<ObjectStatus>();
}

ObjectTypeInfo ObjectStatus::typeInfo()
{
    return makeObjectTypeInfo(ObjectType::Status, &ObjectStatus::create);
}

ObjectWindow* ObjectStatus::createDialog(QWidget* parent)
{
    return WindowMakers::instance().make(*this, parent);
}

void ObjectStatus::writeXml(QDomDocument& document, QDomElement& parent)
{
    QDomElement element = addElement(document, parent, QString::fromLatin1(statusType.tag));
    writeWindow(document, element);
}

void ObjectStatus::readXml(const QDomNode& node)
{
    for (QDomElement child = node.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        readWindow(child);
    }
    settingsChanged();
}

int ObjectStatus::recordVersion() const
{
    return 1;
}
