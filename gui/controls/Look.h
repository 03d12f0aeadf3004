#pragma once

#include <QFont>
#include <QIcon>
#include <QSize>

namespace gui {

// What the tool windows have in common.
inline constexpr int windowMargin = 3; ///< round a window's content and between its parts, pixels
inline constexpr int minimumWindowWidth = 350;
inline constexpr QSize firstWindowSize(550, 300);
inline constexpr int boldWeight = 75;
inline constexpr int lowButtonHeight = 22; ///< of the button below a window's list

/// The icon of this name of the program's set; its file is "resources/icons/<name>.svg".
QIcon icon(const char* name);

/// The font of payloads, traces and counters, whose characters are of one width.
QFont typewriterFont(int pixels);

} // namespace gui
