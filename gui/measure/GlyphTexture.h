#pragma once

#include "measure/GraphDrawing.h"

#include <QFont>

#include <string>
#include <vector>

class QImage;

namespace gui {

/// A corner of what is drawn, as OpenGL takes it.
struct GraphVertex
{
    GraphPoint place;
    GraphColor color;
    GraphPoint inTexture; ///< from 0 to 1; of no matter without a texture
};

/// The letters of a font whose letters are all of one width, as a texture: texts of a picture cost
/// no more than its lines do, and each letter stands on whole pixels. Knows the letters of Latin-1.
///
/// All but the measures needs a current OpenGL context.
class GlyphTexture : public GraphTextMetrics
{
public:
    /// The font that the oscilloscope's texts are in: "6x13" where it is installed, else the
    /// program's typewriter font at the largest size whose lines are no higher.
    static QFont scopeFont();

    explicit GlyphTexture(const QFont& font);
    ~GlyphTexture() override;

    /// Makes the letters for a screen with so many pixels to one of Qt's. What an older context had
    /// is forgotten.
    void load(double pixelRatio);
    /// Adds the corners of a text's letters, four each; places are Qt's pixels from the bottom
    /// left.
    void addTo(std::vector<GraphVertex>& corners, const GraphText& text,
               const GraphColor& color) const;
    /// 0 before `load`.
    unsigned texture() const { return m_texture; }

    /// Of the text as it is drawn at the pixels that were loaded for; before, at one to one.
    int width(const std::string& text) const override;
    int height() const override { return m_height; }

private:
    QImage paintLetters() const;

    QFont m_font;
    int m_height;
    int m_advance; // of each letter
    double m_pixelRatio = 1.0;
    int m_cellWidth; // of the texture, in its own pixels; letters are drawn as far apart
    int m_cellHeight = 0;
    int m_ascent = 0;
    unsigned m_texture = 0;
};

} // namespace gui
