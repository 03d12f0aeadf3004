#include "project/ObjectReplay.h"

ObjectReplay::ObjectReplay() = default;

ObjectReplay::~ObjectReplay() = default;
