#include "gui/measure/GraphPlayer.h"

#include "gui/measure/GlyphTexture.h"

#include <qopengl.h>

#include <algorithm>
#include <cmath>

namespace gui {

namespace {

constexpr GLushort everyOtherPixel = 0xAAAA;

GLenum primitiveOf(GraphItem::Kind kind)
{
    switch (kind) {
    case GraphItem::Kind::Polygon:
        return GL_POLYGON;
    case GraphItem::Kind::LineStrip:
        return GL_LINE_STRIP;
    case GraphItem::Kind::LineLoop:
        return GL_LINE_LOOP;
    case GraphItem::Kind::Points:
        return GL_POINTS;
    default:
        return GL_LINES;
    }
}

void setScissor(const GraphScissor& scissor, double pixelRatio)
{
    const auto scaled = [pixelRatio](int pixels) {
        return static_cast<GLint>(std::lround(pixels * pixelRatio));
    };
    glScissor(scaled(scissor.x), scaled(scissor.y), scaled(scissor.width), scaled(scissor.height));
    glEnable(GL_SCISSOR_TEST);
}

void playShape(const GraphItem& item, double pixelRatio)
{
    const auto size = static_cast<float>(std::max(1L, std::lround(item.size * pixelRatio)));
    if (item.kind == GraphItem::Kind::Points) {
        glPointSize(size);
    } else {
        glLineWidth(size);
    }
    if (item.scissor.isSet) {
        setScissor(item.scissor, pixelRatio);
    }
    if (item.isDotted) {
        glLineStipple(1, everyOtherPixel);
        glEnable(GL_LINE_STIPPLE);
    }
    glDrawArrays(primitiveOf(item.kind), static_cast<GLint>(item.first),
                 static_cast<GLsizei>(item.count));
    if (item.isDotted) {
        glDisable(GL_LINE_STIPPLE);
    }
    if (item.scissor.isSet) {
        glDisable(GL_SCISSOR_TEST);
    }
}

} // namespace

void playDrawing(const GraphDrawing& drawing, GlyphTexture& letters, double pixelRatio)
{
    glEnableClientState(GL_VERTEX_ARRAY);
    const auto pointAtShapes = [&] { glVertexPointer(2, GL_FLOAT, 0, drawing.points().data()); };
    pointAtShapes();
    for (const GraphItem& item : drawing.items()) {
        glColor4f(item.color.red, item.color.green, item.color.blue, item.color.alpha);
        if (item.kind == GraphItem::Kind::Text) {
            letters.draw(drawing.texts()[item.first]);
            pointAtShapes();
        } else {
            playShape(item, pixelRatio);
        }
    }
    glDisableClientState(GL_VERTEX_ARRAY);
}

} // namespace gui
