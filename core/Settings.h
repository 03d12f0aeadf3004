#pragma once

/// The settings of the user: keys of the `SettingsStore`, and what their numbers mean.
namespace zul::setting {

inline constexpr const char* onCloseDialog = "OnCloseDialog";
/// Values of `onCloseDialog`. With any other a window just closes.
namespace close_policy {
inline constexpr int keepObject = 0;
inline constexpr int removeObject = 1;
inline constexpr int askUser = 2;
} // namespace close_policy

inline constexpr const char* restoreTopLevel = "RestoreTopLevel";
/// Values of `restoreTopLevel`. Any other counts at the start only.
namespace restore {
inline constexpr int never = 0;
inline constexpr int onStart = 1;
inline constexpr int always = 2;
} // namespace restore

inline constexpr const char* autoLoadProfile = "AutoLoadProfile"; ///< not 0: at the start
inline constexpr const char* arinc825ProfileSuffix = "Arinc825ProfileSuffix"; ///< with its dot
inline constexpr const char* canAsProfileSuffix = "CanAsProfileSuffix";       ///< with its dot

inline constexpr const char* arincProfileVersion = "ArincProfileVersion";
/// Values of `arincProfileVersion`. Any other but 0 counts as `part3`.
namespace arinc_version {
inline constexpr int part2 = 0; ///< ARINC 825-2, text profiles
inline constexpr int part3 = 1; ///< ARINC 825-3, XML profiles
} // namespace arinc_version

inline constexpr const char* tracePath = "TracePath";
inline constexpr const char* traceDefaultFormat = "TraceDefaultFormat"; ///< nothing reads it

} // namespace zul::setting
