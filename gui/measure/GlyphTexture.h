#pragma once

#include "measure/GraphDrawing.h"

#include <QFont>

#include <string>
#include <vector>

class QImage;

namespace gui {

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
    /// Draws a text in the current colour; places are Qt's pixels from the bottom left.
    void draw(const GraphText& text);

    int width(const std::string& text) const override;
    int height() const override { return m_height; }

private:
    QImage paintLetters() const;

    QFont m_font;
    int m_height;
    int m_advance; // of each letter
    double m_pixelRatio = 1.0;
    int m_cellWidth = 0; // of the texture, in its own pixels
    int m_cellHeight = 0;
    int m_ascent = 0;
    unsigned m_texture = 0;
    std::vector<float> m_corners; // x, y and place in the texture of each letter's corners
};

} // namespace gui
