#include "project/ObjectReceive.h"

ObjectReceive::ObjectReceive() = default;

ObjectReceive::~ObjectReceive() = default;
