#include "project/ObjectTrace.h"

ObjectTrace::ObjectTrace() = default;

ObjectTrace::~ObjectTrace() = default;
