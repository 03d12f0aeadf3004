#pragma once

#include "profile/ArincProfile.h"

#include <QString>

#include <cstdint>

/// Which records of a profile are selected, by their numbers and names. Of the records below one
/// another (an enumeration and its value, a chapter and its parameter) both are.
struct ProfileSelection
{
    /// In place of a number: nothing is selected.
    static constexpr std::int32_t nothing = 999999;
    /// The same in place of an enumeration's name.
    static constexpr const char* noEnum = "__NoEnumSelected";

    std::uint32_t fid = nothing;       ///< code of a user FID
    std::uint32_t unit = nothing;      ///< code of a user unit
    std::uint32_t chapter = nothing;   ///< function code
    std::uint32_t parameter = nothing; ///< serial
    std::int32_t value = nothing;      ///< of the enumeration
    QString enumeration = QLatin1String(noEnum);

    // The selected records of a profile; null if there is none.

    ProfileUserFid* fidOf(ArincProfile& profile) const;
    ProfileUserUnit* unitOf(ArincProfile& profile) const;
    ProfileEnum* enumerationOf(ArincProfile& profile) const;
    ProfileEnumValue* valueOf(ArincProfile& profile) const;
    ProfileFidGroup* chapterOf(ArincProfile& profile) const;
    ProfileParameter* parameterOf(ArincProfile& profile) const;
};
