#pragma once

#include "project/ObjectTypeInfo.h"

#include <vector>

namespace app {

/// The object types of a project in the order of their registration, with their icons. Needs a
/// QApplication.
std::vector<ObjectTypeInfo> objectTypeInfos();

/// Tells the objects who makes their windows.
void registerWindowMakers();

} // namespace app
