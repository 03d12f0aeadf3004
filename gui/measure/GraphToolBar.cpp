#include "gui/measure/GraphToolBar.h"

#include "gui/controls/Look.h"

#include <QButtonGroup>
#include <QToolButton>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr int buttonSide = 32; // pixels
constexpr QSize iconSize(24, 24);
constexpr int modeFontPixels = 11;

} // namespace

GraphToolBar::GraphToolBar(QWidget* parent) : QWidget(parent), m_group(new QButtonGroup(this))
{
    m_group->setExclusive(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
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
        layout->addWidget(made);
    }
    QFont small = font();
    small.setPixelSize(modeFontPixels);
    button(GraphCommand::AutoMode)->setFont(small);
    layout->addStretch();
    connect(m_group, &QButtonGroup::idPressed, this, &GraphToolBar::signalPressed);
    connect(m_group, &QButtonGroup::idReleased, this, &GraphToolBar::signalReleased);
}

QToolButton* GraphToolBar::button(GraphCommand command) const
{
    return qobject_cast<QToolButton*>(m_group->button(static_cast<int>(command)));
}

void GraphToolBar::setModes(bool isAutomatic, bool isSplit)
{
    QToolButton* mode = button(GraphCommand::AutoMode);
    mode->setChecked(isAutomatic);
    mode->setText(isAutomatic ? QStringLiteral("Auto") : QStringLiteral("Man"));
    button(GraphCommand::SplitMode)->setChecked(isSplit);
    button(GraphCommand::SingleMode)->setChecked(!isSplit);
}

} // namespace gui
