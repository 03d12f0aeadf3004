#pragma once

#include "profile/ArincProfile.h"

#include <QString>

class ProfileStore;

namespace zul {

/// Reads a profile of the XML form (ARINC 825-3). False if the file is not XML or has another root
/// element; `profile` then holds the path and the head of the report beside what it held before.
/// All else is reported there, with the line in which the start tag of the element ends, and
/// whatever was read is in the profile, its parameters also in the store's index. An absent
/// attribute counts as an empty text or 0.
bool readXmlProfile(const QString& path, ProfileStore& store, ArincProfile& profile);

} // namespace zul
