#pragma once

#include "profile/ArincProfile.h"
#include "profile/ProfileReport.h"

#include <QString>

#include <map>

namespace zul {

/// Longest text of all checks together, in characters: what a window can still show.
inline constexpr int maxCheckLength = 4 * maxReportLength;

/// Appends a message on several profiles, or the report of one, to the text of the checks, unless
/// that is full.
void appendToCheck(QString& check, const QString& text);

/// Holds the profiles, in the order of their names, against each other: ids, user function codes,
/// user units, and identifiers that two files define. The reports of profiles that are not valid
/// are appended to `report`, and behind them every message. False if anything was appended.
///
/// Deliberate: of several profiles of one id only the latest is compared with the next.
bool crossCheck(const std::map<QString, ArincProfile>& profiles, QString& report);

/// The message on a file whose profile has the name of one that is loaded already.
QString sameNameMessage(const QString& fileName, const QString& otherFileName);

} // namespace zul
