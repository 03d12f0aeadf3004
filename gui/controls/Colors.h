#pragma once

#include <QColor>

namespace gui::colors {

// Button colours carry meaning throughout the program.
inline constexpr QColor addOrSend(180, 255, 180);
inline constexpr QColor remove(255, 255, 180);
inline constexpr QColor clear(255, 180, 180);

// Rows of live tables.
inline constexpr QColor aliveRow(220, 255, 220);
inline constexpr QColor silentRow(255, 255, 255);
inline constexpr QColor normalText(0, 0, 0);
inline constexpr QColor errorText(255, 0, 0);

// Texts of switches and counters.
inline constexpr QColor activeText(0, 150, 0);
inline constexpr QColor idleText(150, 150, 150);

// Rows of the Transmit window, and the editors in them.
inline constexpr QColor selectedRow(210, 210, 255);
inline constexpr QColor editor(220, 220, 220);
inline constexpr QColor entry(255, 255, 255);
inline constexpr QColor unusedEntry(232, 232, 232);

} // namespace gui::colors
