#include "project/InterfaceObject.h"

InterfaceObject::InterfaceObject() : Object(ObjectType::CanInterface) {}

InterfaceObject::~InterfaceObject() = default;

InterfaceObject* InterfaceObject::asInterface()
{
    return this;
}
