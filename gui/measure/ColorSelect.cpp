#include "gui/measure/ColorSelect.h"

#include "gui/frame/ColorDialogs.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>

namespace gui {

namespace {

constexpr QSize swatchSize(30, 18);

} // namespace

ColorSelect::ColorSelect(QWidget* parent) : QWidget(parent), m_swatch(new QFrame(this))
{
    m_swatch->setObjectName(QStringLiteral("swatch"));
    m_swatch->setFixedSize(swatchSize);
    m_swatch->setFrameStyle(QFrame::Box | QFrame::Plain);
    m_swatch->setAutoFillBackground(true);
    auto* select = new QPushButton(QStringLiteral("Select"), this);
    select->setObjectName(QStringLiteral("select"));
    select->setAutoDefault(false);
    connect(select, &QPushButton::clicked, this, &ColorSelect::slotSelect);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_swatch);
    layout->addWidget(select, 1);
}

void ColorSelect::setColor(const QString& color)
{
    m_color = color;
    QPalette colors = m_swatch->palette();
    colors.setColor(QPalette::Window, QColor(color));
    m_swatch->setPalette(colors);
}

void ColorSelect::slotSelect()
{
    const QPointer<ColorSelect> self(this);
    const QColor chosen = ColorDialogs::choose(this, QColor(m_color));
    // Frames go on coming meanwhile, and a window may go.
    if (self != nullptr && chosen.isValid()) {
        setColor(chosen.name());
        emit signalColor(m_color);
    }
}

} // namespace gui
