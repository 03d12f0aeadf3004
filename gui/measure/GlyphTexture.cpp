#include "gui/measure/GlyphTexture.h"

#include "gui/controls/Look.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <qopengl.h>

#include <array>
#include <cmath>

namespace gui {

namespace {

constexpr int lettersInRow = 16;
constexpr int rows = 16;
constexpr int fontHeight = 13;    // pixels of a line
constexpr int smallestPixels = 8; // of the letters
// Between the cells, so that no letter takes from its neighbour.
constexpr int cellGap = 1;

} // namespace

QFont GlyphTexture::scopeFont()
{
    const QString family = QStringLiteral("6x13");
    QFont font(family);
    font.setRawMode(true);
    if (QFontInfo(font).family() == family) {
        return font;
    }
    int pixels = fontHeight;
    do {
        font = typewriterFont(pixels);
    } while (QFontMetrics(font).height() > fontHeight && --pixels >= smallestPixels);
    font.setHintingPreference(QFont::PreferFullHinting);
    return font;
}

GlyphTexture::GlyphTexture(const QFont& font)
    : m_font(font),
      m_height(QFontMetrics(font).height()),
      m_advance(QFontMetrics(font).horizontalAdvance(QLatin1Char('0'))),
      m_cellWidth(m_advance)
{
}

GlyphTexture::~GlyphTexture() = default;

QImage GlyphTexture::paintLetters() const
{
    QImage image(lettersInRow * (m_cellWidth + cellGap), rows * (m_cellHeight + cellGap),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QFont font = m_font;
    font.setPixelSize(static_cast<int>(std::lround(QFontInfo(m_font).pixelSize() * m_pixelRatio)));
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::white);
    for (int code = 0; code < lettersInRow * rows; ++code) {
        const int x = code % lettersInRow * (m_cellWidth + cellGap);
        const int y = code / lettersInRow * (m_cellHeight + cellGap);
        painter.setClipRect(x, y, m_cellWidth, m_cellHeight);
        painter.drawText(x, y + m_ascent, QString(QLatin1Char(static_cast<char>(code))));
    }
    return image;
}

void GlyphTexture::load(double pixelRatio)
{
    m_pixelRatio = pixelRatio;
    m_cellWidth = static_cast<int>(std::lround(m_advance * pixelRatio));
    m_cellHeight = static_cast<int>(std::ceil(m_height * pixelRatio)) + 1;
    m_ascent = static_cast<int>(std::lround(QFontMetrics(m_font).ascent() * pixelRatio));
    const QImage letters = paintLetters().convertToFormat(QImage::Format_Alpha8);
    if (m_texture != 0) {
        glDeleteTextures(1, &m_texture);
    }
    glGenTextures(1, &m_texture);
    glBindTexture(GL_TEXTURE_2D, m_texture);
    // A letter's pixel is a pixel of the screen.
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4); // as images have it
    glTexImage2D(GL_TEXTURE_2D, 0, GL_ALPHA, letters.width(), letters.height(), 0, GL_ALPHA,
                 GL_UNSIGNED_BYTE, letters.constBits());
    glBindTexture(GL_TEXTURE_2D, 0);
}

void GlyphTexture::addTo(std::vector<GraphVertex>& corners, const GraphText& text,
                         const GraphColor& color) const
{
    const auto ratio = static_cast<float>(m_pixelRatio);
    const auto textureWidth = static_cast<float>(lettersInRow * (m_cellWidth + cellGap));
    const auto textureHeight = static_cast<float>(rows * (m_cellHeight + cellGap));
    const float bottom =
        std::round(text.place.y * ratio) - static_cast<float>(m_cellHeight - m_ascent);
    float left = std::round(text.place.x * ratio);
    const auto addCorner = [&](float x, float y, float u, float v) {
        corners.push_back({{x / ratio, y / ratio}, color, {u / textureWidth, v / textureHeight}});
    };
    const auto width = static_cast<float>(m_cellWidth);
    const auto height = static_cast<float>(m_cellHeight);
    for (const char letter : text.text) {
        const int code = static_cast<unsigned char>(letter);
        const int row = code / lettersInRow;
        const auto u = static_cast<float>(code % lettersInRow * (m_cellWidth + cellGap));
        const auto v = static_cast<float>(row * (m_cellHeight + cellGap));
        addCorner(left, bottom, u, v + height);
        addCorner(left + width, bottom, u + width, v + height);
        addCorner(left + width, bottom + height, u + width, v);
        addCorner(left, bottom + height, u, v);
        left += width;
    }
}

int GlyphTexture::width(const std::string& text) const
{
    return static_cast<int>(
        std::lround(static_cast<double>(text.size()) * m_cellWidth / m_pixelRatio));
}

} // namespace gui
