#include "gui/measure/DialLights.h"

#include "gui/controls/WidgetLight.h"

#include <QGridLayout>
#include <QLabel>

namespace gui {

namespace {

constexpr int spacing = 1; // pixels
constexpr int margin = 5;
constexpr int gap = 5;               // between the halves of bytes and of the payload
constexpr int firstOfSecondHalf = 4; // byte, and column of bits
constexpr int numberPixels = 9;

/// A place in the grid of a byte's or a bit's number from 0: behind the heads, and behind the gap.
int gridPlace(int number)
{
    return 1 + number + (number >= firstOfSecondHalf ? 1 : 0);
}

int columnOf(int bit)
{
    return gridPlace(lightBits - 1 - bit); // bit 7 is at the left
}

} // namespace

DialLights::DialLights(QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setSpacing(spacing);
    grid->setContentsMargins(margin, margin, margin, margin);
    constexpr int gapPlace = 1 + firstOfSecondHalf;
    grid->setColumnMinimumWidth(gapPlace, gap);
    grid->setRowMinimumHeight(gapPlace, gap);
    buildHeads(*grid);
    buildLights(*grid);
    showNumbers(noLightDataType);
}

void DialLights::buildHeads(QGridLayout& grid)
{
    for (int bit = 0; bit < lightBits; ++bit) {
        auto* head = new QLabel(QString::asprintf("B%d", bit), this);
        head->setAlignment(Qt::AlignCenter);
        grid.addWidget(head, 0, columnOf(bit));
        grid.setColumnStretch(columnOf(bit), 1);
    }
    for (int byte = 0; byte < lightBytes; ++byte) {
        grid.addWidget(new QLabel(QString::asprintf("Byte %d", byte), this), gridPlace(byte), 0);
        grid.setRowStretch(gridPlace(byte), 1);
    }
}

void DialLights::buildLights(QGridLayout& grid)
{
    for (int byte = 0; byte < lightBytes; ++byte) {
        for (int bit = 0; bit < lightBits; ++bit) {
            auto* light = new WidgetLight(this);
            light->setObjectName(QString::asprintf("light%d.%d", byte, bit));
            QFont font = light->font();
            font.setPixelSize(numberPixels);
            light->setFont(font);
            grid.addWidget(light, gridPlace(byte), columnOf(bit));
            m_lights[static_cast<std::size_t>(byte)][static_cast<std::size_t>(bit)] = light;
        }
    }
}

void DialLights::showNumbers(int dataType)
{
    for (int byte = 0; byte < lightBytes; ++byte) {
        for (int bit = 0; bit < lightBits; ++bit) {
            const std::optional<int> number = lightNumber(byte, bit, dataType);
            WidgetLight* light =
                m_lights[static_cast<std::size_t>(byte)][static_cast<std::size_t>(bit)];
            light->setText(number ? QString::number(*number) : QString());
        }
    }
}

void DialLights::showFrame(const zul::MessageCan& frame)
{
    const int dataType = lightDataType(frame);
    if (dataType != m_dataType) {
        m_dataType = dataType;
        showNumbers(dataType);
    }
    const LightStates states = lightStates(frame);
    for (std::size_t byte = 0; byte < states.size(); ++byte) {
        for (std::size_t bit = 0; bit < states[byte].size(); ++bit) {
            m_lights[byte][bit]->setState(states[byte][bit] ? 1 : 0);
        }
    }
}

} // namespace gui
