#pragma once

#include "profile/ArincProfile.h"

#include <QString>

#include <limits>
#include <utility>
#include <vector>

class ProfileStore;

namespace zul {

/// What a selection offers, in its order: the number of each entry, and its text.
using Choices = std::vector<std::pair<int, QString>>;

/// A number that no entry has.
inline constexpr int noChoice = std::numeric_limits<int>::min();

/// The channels that parameters of a profile may have, by code.
Choices channelChoices(const ProfileStore& store);

/// The redundancy channels, "A" to "D".
Choices rciChoices();

/// All function codes of the chosen version of the standard; a user FID of the profile takes the
/// place of a "Reserved" one.
Choices fidChoices(const ProfileStore& store, const ArincProfile& profile);

/// The units of the standard, and behind them those of the profile, by code. A user unit with a
/// code of the standard is left out: readers take that code for the standard's.
Choices unitChoices(const ProfileStore& store, const ArincProfile& profile);

/// The data types of ARINC 825 by code, and behind them the enumerations of the profile, each with
/// its negative id. An enumeration that is named as a data type is left out: readers take that name
/// for the data type.
Choices dataTypeChoices(const ProfileStore& store, const ArincProfile& profile);

/// The number of the entry that a parameter's data type has among `dataTypeChoices`; `noChoice` if
/// its name is nothing known.
int dataTypeChoice(const ProfileStore& store, const ArincProfile& profile,
                   const ProfileParameter& parameter);

/// The name of the group of a function code: the standard's label, but where that is "Reserved" the
/// name of the profile's user FID, if there is one.
QString groupName(const ProfileStore& store, const ArincProfile& profile, std::uint32_t fid);

} // namespace zul
