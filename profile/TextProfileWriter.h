#pragma once

#include "profile/ArincProfile.h"

#include <QString>

class ProfileStore;

namespace zul {

/// Writes a profile in the text form. Nothing is checked. False if the file cannot be written; it
/// is replaced in one step, so that a failure leaves the old one.
bool writeTextProfile(const QString& path, const ProfileStore& store, const ArincProfile& profile);

} // namespace zul
