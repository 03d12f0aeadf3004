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

} // namespace gui::colors
