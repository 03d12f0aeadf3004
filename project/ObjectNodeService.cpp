#include "project/ObjectNodeService.h"

ObjectNodeService::ObjectNodeService() = default;

ObjectNodeService::~ObjectNodeService() = default;

bool ObjectNodeService::hasFilter() const
{
    return false;
}
