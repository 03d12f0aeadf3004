#pragma once

#include "gui/measure/GlyphTexture.h"
#include "measure/GraphDrawing.h"

#include <vector>

namespace gui {

/// Plays a drawing into the current OpenGL context. What needs the same settings of OpenGL and does
/// not lie above one another is drawn at once, and a pixel column of a trace with two lines at
/// most, since a renderer without a graphics processor pays for each line and each change of
/// settings.
///
/// All but the measures of texts needs a current OpenGL context.
class GraphPlayer
{
public:
    explicit GraphPlayer(const QFont& font) : m_letters(font) {}

    const GraphTextMetrics& metrics() const { return m_letters; }

    /// Makes what the card keeps, for a screen with so many pixels to one of the drawing's. What an
    /// older context had is forgotten.
    void load(double pixelRatio);
    void play(const GraphDrawing& drawing);

private:
    void addLines(const GraphDrawing& drawing, const GraphItem& item);
    void addDottedLines(const GraphDrawing& drawing, const GraphItem& item);
    void flush();
    void playShape(const GraphDrawing& drawing, const GraphItem& item);
    void playStrip(const GraphDrawing& drawing, const GraphItem& item);
    void addColumn(const GraphPoint* column, std::size_t count);
    float endBehind(const GraphPoint& top) const;
    void setScissor(const GraphScissor& scissor) const;
    float screenSize(float size) const;

    GlyphTexture m_letters;
    double m_pixelRatio = 1.0;
    unsigned m_dots = 0;                // a texture of every other pixel
    float m_lineWidth = 1.0F;           // of `m_lines`
    std::vector<GraphVertex> m_lines;   // to be drawn, two to a line
    std::vector<GraphVertex> m_dotted;  // the same
    std::vector<GraphVertex> m_corners; // of letters to be drawn
    std::vector<GraphPoint> m_trace;    // of one trace, two to a line
};

} // namespace gui
