#include "gui/measure/GraphPlayer.h"

#include <qopengl.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace gui {

namespace {

GLenum primitiveOf(GraphItem::Kind kind)
{
    switch (kind) {
    case GraphItem::Kind::Polygon:
        return GL_POLYGON;
    case GraphItem::Kind::LineLoop:
        return GL_LINE_LOOP;
    case GraphItem::Kind::Points:
        return GL_POINTS;
    default:
        return GL_LINES;
    }
}

void setColor(const GraphColor& color)
{
    glColor4f(color.red, color.green, color.blue, color.alpha);
}

void drawVertices(GLenum primitive, std::vector<GraphVertex>& vertices)
{
    if (vertices.empty()) {
        return;
    }
    constexpr GLsizei stride = sizeof(GraphVertex);
    glEnableClientState(GL_COLOR_ARRAY);
    glVertexPointer(2, GL_FLOAT, stride, &vertices.front().place);
    glColorPointer(4, GL_FLOAT, stride, &vertices.front().color);
    glTexCoordPointer(2, GL_FLOAT, stride, &vertices.front().inTexture);
    glDrawArrays(primitive, 0, static_cast<GLsizei>(vertices.size()));
    glDisableClientState(GL_COLOR_ARRAY);
    vertices.clear();
}

// Of what lets through something of what lies below: letters and dotted lines are of this sort.
void drawTextured(GLenum primitive, unsigned texture, std::vector<GraphVertex>& vertices)
{
    if (vertices.empty()) {
        return;
    }
    glEnable(GL_BLEND);
    glEnable(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
    glEnableClientState(GL_TEXTURE_COORD_ARRAY);
    drawVertices(primitive, vertices);
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_BLEND);
}

} // namespace

void GraphPlayer::load(double pixelRatio)
{
    m_pixelRatio = pixelRatio;
    m_letters.load(pixelRatio);
    if (m_dots != 0) {
        glDeleteTextures(1, &m_dots);
    }
    // Off, on; rows are whole words.
    constexpr std::array<GLubyte, 4> everyOtherPixel{0, 255, 0, 0};
    glGenTextures(1, &m_dots);
    glBindTexture(GL_TEXTURE_2D, m_dots);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_ALPHA, 2, 1, 0, GL_ALPHA, GL_UNSIGNED_BYTE,
                 everyOtherPixel.data());
    glBindTexture(GL_TEXTURE_2D, 0);
}

void GraphPlayer::play(const GraphDrawing& drawing)
{
    glEnableClientState(GL_VERTEX_ARRAY);
    glDisable(GL_BLEND); // most of it is opaque, and done faster so
    for (const GraphItem& item : drawing.items()) {
        if (item.kind == GraphItem::Kind::Text) {
            m_letters.addTo(m_corners, drawing.texts()[item.first], item.color);
        } else if (item.kind != GraphItem::Kind::Lines || item.scissor.isSet) {
            flush();
            playShape(drawing, item);
        } else if (item.isDotted) {
            addDottedLines(drawing, item);
        } else {
            addLines(drawing, item);
        }
    }
    flush();
    glEnable(GL_BLEND);
    glDisableClientState(GL_VERTEX_ARRAY);
}

float GraphPlayer::screenSize(float size) const
{
    return static_cast<float>(std::max(1L, std::lround(size * m_pixelRatio)));
}

void GraphPlayer::addLines(const GraphDrawing& drawing, const GraphItem& item)
{
    if (item.size != m_lineWidth) {
        flush();
        m_lineWidth = item.size;
    }
    for (std::size_t i = 0; i < item.count; ++i) {
        m_lines.push_back({drawing.points()[item.first + i], item.color, {}});
    }
}

// The dots come from a texture: as a setting of lines they would be drawn one by one.
void GraphPlayer::addDottedLines(const GraphDrawing& drawing, const GraphItem& item)
{
    const auto ratio = static_cast<float>(m_pixelRatio);
    for (std::size_t i = 0; i + 1 < item.count; i += 2) {
        const GraphPoint& from = drawing.points()[item.first + i];
        const GraphPoint& to = drawing.points()[item.first + i + 1];
        const bool isUpright = std::fabs(to.y - from.y) > std::fabs(to.x - from.x);
        const float first = (isUpright ? from.y : from.x) * ratio;
        const float last = (isUpright ? to.y : to.x) * ratio;
        // Two pixels to the texture, counted from the first: their middles are those of its halves.
        const auto place = [start = std::floor(first)](float pixel) {
            return GraphPoint{(pixel - start) / 2.0F, 0.5F};
        };
        m_dotted.push_back({from, item.color, place(first)});
        m_dotted.push_back({to, item.color, place(last)});
    }
}

void GraphPlayer::flush()
{
    glLineWidth(screenSize(m_lineWidth));
    drawVertices(GL_LINES, m_lines);
    glLineWidth(screenSize(1.0F));
    drawTextured(GL_LINES, m_dots, m_dotted);
    drawTextured(GL_QUADS, m_letters.texture(), m_corners);
}

void GraphPlayer::setScissor(const GraphScissor& scissor) const
{
    const auto scaled = [this](int pixels) {
        return static_cast<GLint>(std::lround(pixels * m_pixelRatio));
    };
    glScissor(scaled(scissor.x), scaled(scissor.y), scaled(scissor.width), scaled(scissor.height));
    glEnable(GL_SCISSOR_TEST);
}

void GraphPlayer::playShape(const GraphDrawing& drawing, const GraphItem& item)
{
    setColor(item.color);
    if (item.color.alpha < 1.0F) {
        glEnable(GL_BLEND);
    }
    if (item.kind == GraphItem::Kind::Points) {
        glPointSize(screenSize(item.size));
    } else {
        glLineWidth(screenSize(item.size));
    }
    if (item.scissor.isSet) {
        setScissor(item.scissor);
    }
    if (item.kind == GraphItem::Kind::LineStrip) {
        playStrip(drawing, item);
    } else {
        glVertexPointer(2, GL_FLOAT, 0, drawing.points().data());
        glDrawArrays(primitiveOf(item.kind), static_cast<GLint>(item.first),
                     static_cast<GLsizei>(item.count));
    }
    glDisable(GL_SCISSOR_TEST);
    glDisable(GL_BLEND);
}

void GraphPlayer::playStrip(const GraphDrawing& drawing, const GraphItem& item)
{
    m_trace.clear();
    const GraphPoint* point = drawing.points().data() + item.first;
    const GraphPoint* end = point + item.count;
    while (point != end) {
        const GraphPoint* next = std::find_if(
            point, end, [x = point->x](const GraphPoint& other) { return other.x != x; });
        addColumn(point, static_cast<std::size_t>(next - point));
        if (next != end) {
            m_trace.insert(m_trace.end(), {*(next - 1), *next});
        }
        point = next;
    }
    glVertexPointer(2, GL_FLOAT, 0, m_trace.data());
    glDrawArrays(GL_LINES, 0, static_cast<GLsizei>(m_trace.size()));
}

// Points above one another are one upright line, whatever their order.
void GraphPlayer::addColumn(const GraphPoint* column, std::size_t count)
{
    const auto [low, high] = std::minmax_element(
        column, column + count,
        [](const GraphPoint& one, const GraphPoint& two) { return one.y < two.y; });
    if (low->y == high->y) {
        return;
    }
    const GraphPoint& last = column[count - 1];
    if (last.y == low->y) {
        m_trace.insert(m_trace.end(), {*high, *low});
    } else if (last.y == high->y) {
        m_trace.insert(m_trace.end(), {*low, *high});
    } else {
        m_trace.insert(m_trace.end(), {*low, {high->x, endBehind(*high)}});
    }
}

// A line's last pixel is drawn only by a line that goes on there. Where none does, it has to end
// behind that pixel's diamond, whose height depends on how far from its middle the line passes.
float GraphPlayer::endBehind(const GraphPoint& top) const
{
    const auto ratio = static_cast<float>(m_pixelRatio);
    const float x = top.x * ratio;
    const float fromMiddle = std::fabs(x - std::floor(x) - 0.5F);
    return top.y + (1.0F - 2.0F * fromMiddle) / ratio;
}

} // namespace gui
