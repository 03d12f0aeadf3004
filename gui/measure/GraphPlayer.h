#pragma once

#include "measure/GraphDrawing.h"

namespace gui {

class GlyphTexture;

/// Plays a drawing into the current OpenGL context. `pixelRatio` is the number of the screen's
/// pixels to one of the drawing's.
void playDrawing(const GraphDrawing& drawing, GlyphTexture& letters, double pixelRatio);

} // namespace gui
