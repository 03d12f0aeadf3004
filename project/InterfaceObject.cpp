#include "project/InterfaceObject.h"

InterfaceObject::InterfaceObject() = default;

InterfaceObject::~InterfaceObject() = default;

InterfaceObject* InterfaceObject::asInterface()
{
    return this;
}
