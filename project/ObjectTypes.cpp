#include "project/ObjectTypes.h"

#include <algorithm>

QString allInterfacesName()
{
    return QString::fromLatin1(allInterfaces);
}

const ObjectTypeTexts* findObjectType(ObjectType type)
{
    if (type == statusType.type) {
        return &statusType;
    }
    const auto found =
        std::find_if(objectTypes.begin(), objectTypes.end(),
                     [type](const ObjectTypeTexts& texts) { return texts.type == type; });
    return found != objectTypes.end() ? &*found : nullptr;
}
