#include "gui/measure/WidgetSppEpp.h"

#include "measure/PayloadCells.h"

#include <QPainter>

namespace {

constexpr int cellWidth = 2;
constexpr int cellHeight = 4;
constexpr int cellPitch = 3;
constexpr int cellsInGroup = 8;
constexpr int groupGap = 5;
constexpr int minimumStripWidth = 230;
constexpr QColor usedColor(0, 180, 0);
constexpr QColor unusedColor(180, 180, 180);

} // namespace

WidgetSppEpp::WidgetSppEpp(QWidget* parent) : QFrame(parent)
{
    setFixedHeight(cellHeight);
    setMinimumWidth(minimumStripWidth);
}

void WidgetSppEpp::setParameter(const ProfileParameter& parameter)
{
    m_parameter = parameter;
    update();
}

void WidgetSppEpp::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int cell = 0; cell < payloadCells; ++cell) {
        const int x = cell * cellPitch + cell / cellsInGroup * groupGap;
        painter.fillRect(x, 0, cellWidth, cellHeight,
                         isPayloadCellUsed(cell, m_parameter) ? usedColor : unusedColor);
    }
}
