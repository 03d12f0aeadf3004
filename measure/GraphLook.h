#pragma once

#include "measure/GraphChannel.h"

/// Sizes in pixels and colours that several parts of the oscilloscope's picture share.
namespace graphLook {

inline constexpr float majorTick = 10.0F; ///< length of a tick with a label
inline constexpr float minorTick = 5.0F;
inline constexpr float textGap = 5.0F;                 ///< between a text and what it stands at
inline constexpr float labelGap = majorTick + textGap; ///< between the plot and an axis's labels
inline constexpr GraphColor white{1.0F, 1.0F, 1.0F};

} // namespace graphLook
