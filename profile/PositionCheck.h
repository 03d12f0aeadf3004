#pragma once

#include "profile/ProfileParameter.h"
#include "profile/ProfileReport.h"

namespace zul {

/// Reports every rule for the position of a parameter's data type that its SPP and EPP break.
///
/// Deliberate: types of whole bytes are not held against the eight bytes of a frame; byte 9 of a
/// "CHAR" is fine if it is the same in SPP and EPP.
void checkPositions(const ProfileParameter& parameter, int line, ProfileReport& report);

} // namespace zul
