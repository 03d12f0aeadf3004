#include "gui/measure/GraphToolBar.h"

#include "gui/controls/Look.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QResizeEvent>
#include <QToolButton>

#include <algorithm>

namespace gui {

namespace {

constexpr int buttonSide = 32; // pixels
constexpr QSize iconSize(24, 24);
constexpr int modeFontPixels = 11;
constexpr int fewestRows = 4;

} // namespace

GraphToolBar::GraphToolBar(QWidget* parent)
    : QWidget(parent), m_group(new QButtonGroup(this)), m_grid(new QGridLayout(this))
{
    m_group->setExclusive(false);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(0);
    m_grid->setSizeConstraint(QLayout::SetNoConstraint); // fewer rows than there are now will do
    setMinimumHeight(fewestRows * buttonSide);
    for (const GraphButton& row : graphButtons) {
        auto* made = new QToolButton(this);
        made->setFixedSize(buttonSide, buttonSide);
        made->setToolTip(QLatin1String(row.toolTip));
        made->setCheckable(row.isCheckable);
        made->setFocusPolicy(Qt::NoFocus); // the keyboard stays with the plot
        made->setAutoRaise(true);
        if (*row.icon != '\0') {
            made->setIcon(icon(row.icon));
            made->setIconSize(iconSize);
        }
        m_group->addButton(made, static_cast<int>(row.command));
    }
    QFont small = font();
    small.setPixelSize(modeFontPixels);
    button(GraphCommand::AutoMode)->setFont(small);
    arrange(static_cast<int>(graphButtons.size()));
    connect(m_group, &QButtonGroup::idPressed, this, &GraphToolBar::signalPressed);
    connect(m_group, &QButtonGroup::idReleased, this, &GraphToolBar::signalLetGo);
    // A button that the pointer leaves counts as released for Qt, but not for a user who thought
    // better of it.
    connect(m_group, &QButtonGroup::idClicked, this, &GraphToolBar::signalReleased);
}

void GraphToolBar::resizeEvent(QResizeEvent* event)
{
    arrange(std::max(event->size().height() / buttonSide, fewestRows));
    QWidget::resizeEvent(event);
}

void GraphToolBar::arrange(int rows)
{
    const int buttons = static_cast<int>(graphButtons.size());
    rows = std::min(rows, buttons);
    if (rows == m_rows) {
        return;
    }
    m_grid->setRowStretch(m_rows, 0);
    m_rows = rows;
    for (int id = 0; id < buttons; ++id) {
        m_grid->addWidget(m_group->button(id), id % rows, id / rows);
    }
    m_grid->setRowStretch(rows, 1);
    setFixedWidth((buttons + rows - 1) / rows * buttonSide);
}

QToolButton* GraphToolBar::button(GraphCommand command) const
{
    return qobject_cast<QToolButton*>(m_group->button(static_cast<int>(command)));
}

void GraphToolBar::setModes(bool isAutomatic, bool isSplit) const
{
    QToolButton* mode = button(GraphCommand::AutoMode);
    mode->setChecked(isAutomatic);
    mode->setText(isAutomatic ? QStringLiteral("Auto") : QStringLiteral("Man"));
    button(GraphCommand::SplitMode)->setChecked(isSplit);
    button(GraphCommand::SingleMode)->setChecked(!isSplit);
}

} // namespace gui
