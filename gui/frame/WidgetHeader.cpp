#include "gui/frame/WidgetHeader.h"

#include "core/Clock.h"
#include "gui/controls/Colors.h"
#include "gui/controls/Look.h"
#include "gui/frame/WidgetInterfaceSelect.h"
#include "project/ObjectTypes.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QToolButton>

namespace {

constexpr QColor filterColor(240, 140, 0);

constexpr int counterFontPixels = 10;
constexpr int filterFontPixels = 12;
constexpr int iconExtent = 16;
constexpr int controlGap = 3;
constexpr int hexadecimal = 1;

void setForeground(QWidget& widget, const QColor& color)
{
    QPalette colors = widget.palette();
    colors.setColor(widget.foregroundRole(), color);
    widget.setPalette(colors);
}

} // namespace

WidgetHeader::WidgetHeader(QWidget* parent)
    : QToolBar(parent),
      m_inputInterface(allInterfacesName()),
      m_outputInterface(allInterfacesName())
{
    setIconSize({iconExtent, iconExtent});
    setMovable(false);
    // All controls are one widget of the bar: what does not fit would else go into a menu that
    // shows no controls.
    auto* content = new QWidget(this);
    content->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_first = new QWidget(content);
    m_second = new QWidget(content);
    m_rows = new QGridLayout(content);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(controlGap);
    m_rows->setColumnStretch(1, 1);
    m_current = makeRow(m_first);
    buildInput();
    addLine();
    buildFilter();
    addLine();
    m_setup = makeButton(QStringLiteral("Dialog Setup"), QStringLiteral("dialogSetup"));
    m_setup->setIcon(gui::icon("dialog-setup"));
    m_numberFormat =
        makeButton(QStringLiteral("Decimal/Hex Display"), QStringLiteral("numberFormat"));
    m_current = makeRow(m_second);
    m_between = addLine();
    buildCustomArea();
    addLine();
    buildOutput();
    addWidget(content);
    connectControls();
    refresh();
    wrap();
}

QHBoxLayout* WidgetHeader::makeRow(QWidget* parent)
{
    auto* row = new QHBoxLayout(parent);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(controlGap);
    return row;
}

QFrame* WidgetHeader::addLine()
{
    auto* line = new QFrame(this);
    line->setFrameStyle(QFrame::VLine | QFrame::Sunken);
    m_current->addWidget(line);
    return line;
}

void WidgetHeader::resizeEvent(QResizeEvent* event)
{
    QToolBar::resizeEvent(event);
    wrap();
}

int WidgetHeader::widthOfOneRow() const
{
    // The line between the halves counts also while it is hidden. Else the bar would need less room
    // in two rows than in one, and at some widths go to and fro between them for ever.
    const int hiddenLine = m_between->isHidden() ? m_between->sizeHint().width() + controlGap : 0;
    return m_first->minimumSizeHint().width() + m_second->minimumSizeHint().width() + controlGap +
           hiddenLine;
}

void WidgetHeader::wrap()
{
    const bool isWrapped = m_rows->parentWidget()->width() < widthOfOneRow();
    if (isWrapped == m_isWrapped && m_rows->count() > 0) {
        return;
    }
    m_isWrapped = isWrapped;
    m_between->setVisible(!isWrapped);
    m_rows->removeWidget(m_first);
    m_rows->removeWidget(m_second);
    m_rows->addWidget(m_first, 0, 0, isWrapped ? Qt::AlignLeft : Qt::Alignment());
    if (isWrapped) {
        m_rows->addWidget(m_second, 1, 0, 1, 2);
    } else {
        m_rows->addWidget(m_second, 0, 1);
    }
    updateGeometry();
}

QLabel* WidgetHeader::makeCounter(const QString& toolTip, const QString& objectName)
{
    auto* counter = new QLabel(QStringLiteral("0000"), this);
    QFont font = gui::typewriterFont(counterFontPixels);
    font.setBold(true);
    counter->setFont(font);
    counter->setToolTip(toolTip);
    counter->setObjectName(objectName);
    counter->setMargin(2);
    // It has four digits of one width: a fixed size saves the window a new layout at each count.
    counter->setFixedSize(counter->sizeHint());
    m_current->addWidget(counter);
    return counter;
}

QToolButton* WidgetHeader::makeButton(const QString& toolTip, const QString& objectName)
{
    auto* button = new QToolButton(this);
    button->setToolTip(toolTip);
    button->setObjectName(objectName);
    button->setAutoRaise(true);
    button->setIconSize(iconSize());
    m_current->addWidget(button);
    return button;
}

void WidgetHeader::buildInput()
{
    m_inputSelect = new gui::WidgetInterfaceSelect(this);
    m_inputSelect->setObjectName(QStringLiteral("inputSelect"));
    m_current->addWidget(m_inputSelect);
    m_inputCounter = makeCounter(QStringLiteral("Input Activity"), QStringLiteral("inputCounter"));
    m_inputSwitch =
        makeButton(QStringLiteral("Enable/Disable Input"), QStringLiteral("inputSwitch"));
}

void WidgetHeader::buildFilter()
{
    m_filterSwitch =
        makeButton(QStringLiteral("Enable/Disable Filter"), QStringLiteral("filterSwitch"));
    m_filterSwitch->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_filterSetup = makeButton(QStringLiteral("Filter Setup"), QStringLiteral("filterSetup"));
    m_filterSetup->setIcon(gui::icon("filter-setup"));
}

void WidgetHeader::buildCustomArea()
{
    auto* area = new QWidget(this);
    area->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_customArea = new QHBoxLayout(area);
    m_customArea->setContentsMargins(0, 0, 0, 0);
    m_current->addWidget(area, 1);
}

void WidgetHeader::buildOutput()
{
    m_outputSwitch =
        makeButton(QStringLiteral("Enable/Disable Output"), QStringLiteral("outputSwitch"));
    m_outputCounter =
        makeCounter(QStringLiteral("Output Activity"), QStringLiteral("outputCounter"));
    m_outputSelect = new gui::WidgetInterfaceSelect(this);
    m_outputSelect->setObjectName(QStringLiteral("outputSelect"));
    m_current->addWidget(m_outputSelect);
}

void WidgetHeader::connectControls()
{
    using gui::WidgetInterfaceSelect;
    connect(m_inputSelect, &WidgetInterfaceSelect::signalChanged, this,
            &WidgetHeader::slotInputInterface);
    connect(m_inputSwitch, &QToolButton::clicked, this, &WidgetHeader::slotInput);
    connect(m_filterSwitch, &QToolButton::clicked, this, &WidgetHeader::slotFilter);
    connect(m_filterSetup, &QToolButton::clicked, this, &WidgetHeader::slotFilterSetup);
    connect(m_setup, &QToolButton::clicked, this, &WidgetHeader::slotSetup);
    connect(m_numberFormat, &QToolButton::clicked, this, &WidgetHeader::slotNumberType);
    connect(m_outputSwitch, &QToolButton::clicked, this, &WidgetHeader::slotOutput);
    connect(m_outputSelect, &WidgetInterfaceSelect::signalChanged, this,
            &WidgetHeader::slotOutputInterface);
}

void WidgetHeader::setMode(Mode mode)
{
    const bool hasInput = mode != Mode::Output;
    const bool hasOutput = mode != Mode::Input;
    for (QWidget* control :
         {static_cast<QWidget*>(m_inputSelect), static_cast<QWidget*>(m_inputCounter),
          static_cast<QWidget*>(m_inputSwitch), static_cast<QWidget*>(m_filterSwitch),
          static_cast<QWidget*>(m_filterSetup)}) {
        control->setEnabled(hasInput);
    }
    for (QWidget* control :
         {static_cast<QWidget*>(m_outputSwitch), static_cast<QWidget*>(m_outputCounter),
          static_cast<QWidget*>(m_outputSelect)}) {
        control->setEnabled(hasOutput);
    }
}

void WidgetHeader::setInputOn(bool on)
{
    m_inputOn = on;
    refresh();
}

void WidgetHeader::setOutputOn(bool on)
{
    m_outputOn = on;
    refresh();
}

void WidgetHeader::setFilterOn(bool on)
{
    m_filterOn = on;
    refresh();
}

void WidgetHeader::setNumberType(int numberType)
{
    m_numberType = numberType;
    refresh();
}

void WidgetHeader::setInputInterface(const QString& name)
{
    m_inputInterface = name;
    refresh();
}

void WidgetHeader::setOutputInterface(const QString& name)
{
    m_outputInterface = name;
    refresh();
}

void WidgetHeader::setInputCount(std::uint32_t count)
{
    if (m_input.setCount(count, zul::wallClock())) {
        m_paletteDirty = true;
    }
    refreshCounters();
}

void WidgetHeader::setOutputCount(std::uint32_t count)
{
    m_output.setCountQuietly(count);
    refreshCounters();
}

void WidgetHeader::addCustomWidget(QWidget* widget)
{
    m_customArea->addWidget(widget);
}

void WidgetHeader::addCustomStretch()
{
    m_customArea->addStretch();
}

void WidgetHeader::slotInput()
{
    m_inputOn = !m_inputOn;
    emit signalInputOn(m_inputOn);
    refresh();
}

void WidgetHeader::slotFilter()
{
    m_filterOn = !m_filterOn;
    emit signalFilterOn(m_filterOn);
    refresh();
}

void WidgetHeader::slotFilterSetup()
{
    emit signalFilterSetup();
}

void WidgetHeader::slotSetup()
{
    emit signalSetup();
}

void WidgetHeader::slotNumberType()
{
    m_numberType = m_numberType == hexadecimal ? 0 : hexadecimal;
    emit signalNumberType(m_numberType);
    refresh();
}

void WidgetHeader::slotOutput()
{
    m_outputOn = !m_outputOn;
    emit signalOutputOn(m_outputOn);
    refresh();
}

void WidgetHeader::slotInputInterface(const QString& name)
{
    m_inputInterface = name;
    emit signalInputInterface(name);
}

void WidgetHeader::slotOutputInterface(const QString& name)
{
    m_outputInterface = name;
    emit signalOutputInterface(name);
}

void WidgetHeader::refresh()
{
    m_inputSelect->setInterface(m_inputInterface);
    m_outputSelect->setInterface(m_outputInterface);
    m_inputSwitch->setIcon(gui::icon(m_inputOn ? "input-on" : "input-off"));
    m_outputSwitch->setIcon(gui::icon(m_outputOn ? "output-on" : "output-off"));
    m_numberFormat->setText(m_numberType == hexadecimal ? QStringLiteral("Hex\n0x1")
                                                        : QStringLiteral("Dec\n123"));
    refreshFilter();
    refreshCounters();
}

void WidgetHeader::refreshFilter()
{
    QFont font = m_filterSwitch->font();
    font.setPixelSize(filterFontPixels);
    font.setBold(m_filterOn);
    m_filterSwitch->setFont(font);
    m_filterSwitch->setText(m_filterOn ? QStringLiteral("Filter on")
                                       : QStringLiteral("Filter off"));
    setForeground(*m_filterSwitch, m_filterOn ? filterColor : gui::colors::idleText);
}

void WidgetHeader::refreshCounters()
{
    if (m_paletteDirty) {
        m_paletteDirty = false;
        setForeground(*m_inputCounter,
                      m_input.isLit() ? gui::colors::activeText : gui::colors::idleText);
        setForeground(*m_outputCounter,
                      m_output.isLit() ? gui::colors::activeText : gui::colors::idleText);
    }
    m_inputCounter->setText(m_input.text());
    m_outputCounter->setText(m_output.text());
}
