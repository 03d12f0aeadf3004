#pragma once

#include "profile/ArincProfile.h"

#include <QString>

class ProfileStore;

namespace zul {

/// Longest line of a text profile, in characters; what stands beyond is dropped. It bounds the
/// memory that a hostile file takes.
inline constexpr int maxProfileLineLength = 1024 * 1024;

/// Reads a profile of the text form (ARINC 825-2) line by line. False if the file cannot be opened;
/// `profile.result` then holds its head alone. All else is reported there, line by line, and
/// whatever was read is in the profile, its parameters also in the store's index. Comment lines and
/// empty ones count as lines.
bool readTextProfile(const QString& path, ProfileStore& store, ArincProfile& profile);

} // namespace zul
