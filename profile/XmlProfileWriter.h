#pragma once

#include "profile/ArincProfile.h"

#include <QString>

namespace zul {

/// Writes a profile in the XML form (ARINC 825-3). Nothing is checked. False if the file could not
/// be written; the old one then stays.
///
/// Deliberate: the unit code is not written, nor are comments of function codes and units and
/// acronyms of units. The update period is written under a name that the reader does not look for.
bool writeXmlProfile(const QString& path, const ArincProfile& profile);

} // namespace zul
