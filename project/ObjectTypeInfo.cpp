#include "project/ObjectTypeInfo.h"

#include "project/Object.h"

ObjectTypeInfo makeObjectTypeInfo(ObjectType type, ObjectTypeInfo::Factory factory)
{
    ObjectTypeInfo info;
    info.type = type;
    info.factory = factory;
    if (const ObjectTypeTexts* texts = findObjectType(type)) {
        info.title = QString::fromLatin1(texts->title);
        info.tag = QString::fromLatin1(texts->tag);
    }
    return info;
}
