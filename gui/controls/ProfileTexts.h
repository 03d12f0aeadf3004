#pragma once

#include "profile/ProfileParameter.h"

#include <QString>

namespace gui {

// How trees show what is in profiles.

/// Number and name of a group, a user FID or a user unit, such as "4 Flight State".
QString codeText(std::uint32_t code, const QString& name);

/// Name and unit of a parameter, such as "Pitch [deg]".
QString parameterText(const ProfileParameter& parameter);

/// The same with the fields of its identifier, each in a line. Tags in names are seen, not obeyed.
QString parameterToolTip(const ProfileParameter& parameter);

} // namespace gui
