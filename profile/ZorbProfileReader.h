#pragma once

#include "profile/ArincProfile.h"

#include <QString>

class ProfileStore;

namespace zul {

/// Root element of a ZORB profile.
inline constexpr const char* zorbProfileRoot = "ZORBprofile";

/// Reads a CANaerospace profile. False if the file is not XML or has another root element. Nothing
/// is checked or reported, and the parameters do not enter the store's index. An unknown
/// "canasType" enters the store's table as one without data.
bool readZorbProfile(const QString& path, ProfileStore& store, ZorbProfile& profile);

} // namespace zul
