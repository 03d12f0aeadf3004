#pragma once

namespace gui {

/// Margins and gaps within an editor, in pixels; its height leaves no room for more.
inline constexpr int editorGap = 2;
inline constexpr int editorRowHeight = 18; ///< two rows and a frame stand in a height of 40
inline constexpr int editorFieldHeight = 22;
inline constexpr int canIdWidth = 100;
inline constexpr int modeWidth = 82;

/// What one byte holds at most.
inline constexpr int maxByte = 255;

} // namespace gui
