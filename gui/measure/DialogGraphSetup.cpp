#include "gui/measure/DialogGraphSetup.h"

#include "gui/controls/Look.h"
#include "gui/measure/ColorSelect.h"
#include "project/ObjectGraph.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>

namespace gui {

namespace {

constexpr int controlColumns = 2;

QCheckBox* makeCheck(const char* text, const char* objectName, QWidget* parent)
{
    auto* check = new QCheckBox(QLatin1String(text), parent);
    check->setObjectName(QLatin1String(objectName));
    return check;
}

ColorSelect* makeColor(const char* objectName, QWidget* parent)
{
    auto* select = new ColorSelect(parent);
    select->setObjectName(QLatin1String(objectName));
    return select;
}

} // namespace

DialogGraphSetup::DialogGraphSetup(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Oscilloscope Setup"));
    setWindowIcon(icon("oscilloscope"));
    build();
    connectControls();
    refresh();
}

void DialogGraphSetup::build()
{
    m_plotColor = makeColor("plotColor", this);
    m_gridOn = makeCheck("Grid On", "gridOn", this);
    m_gridColor = makeColor("gridColor", this);
    m_labelColor = makeColor("labelColor", this);
    m_labelBackColor = makeColor("labelBackColor", this);
    m_cursorOn = makeCheck("Cursor On", "cursorOn", this);
    m_cursorMode = new QComboBox(this);
    m_cursorMode->setObjectName(QStringLiteral("cursorMode"));
    m_cursorMode->addItems({QStringLiteral("Floating"), QStringLiteral("Center")});
    m_legendOn = makeCheck("Legend On", "legendOn", this);

    struct Row
    {
        const char* label;
        QWidget* first;
        QWidget* second;
    };
    const std::array<Row, 6> rows{{{"Background Color :", m_plotColor, nullptr},
                                   {"Grid On/Color :", m_gridOn, m_gridColor},
                                   {"Label Color :", m_labelColor, nullptr},
                                   {"Label Background :", m_labelBackColor, nullptr},
                                   {"Cursor On/Mode :", m_cursorOn, m_cursorMode},
                                   {"Legend :", m_legendOn, nullptr}}};
    auto* grid = new QGridLayout(this);
    int line = 0;
    for (const Row& row : rows) {
        grid->addWidget(new QLabel(QLatin1String(row.label), this), line, 0);
        // A control that stands alone stands below the others of its sort.
        const bool isCheck = qobject_cast<QCheckBox*>(row.first) != nullptr;
        grid->addWidget(row.first, line, isCheck ? 1 : controlColumns);
        if (row.second != nullptr) {
            grid->addWidget(row.second, line, controlColumns);
        }
        ++line;
    }
    buildAutoScale(*grid, line);
}

void DialogGraphSetup::buildAutoScale(QGridLayout& grid, int row)
{
    auto* allOn = new QPushButton(QStringLiteral("All On"), this);
    allOn->setObjectName(QStringLiteral("allOn"));
    auto* allOff = new QPushButton(QStringLiteral("All Off"), this);
    allOff->setObjectName(QStringLiteral("allOff"));
    auto* close = new QPushButton(QStringLiteral("Close"), this);
    close->setObjectName(QStringLiteral("close"));
    for (QPushButton* button : {allOn, allOff, close}) {
        button->setAutoDefault(false);
    }
    connect(allOn, &QPushButton::clicked, this, &DialogGraphSetup::slotAllOn);
    connect(allOff, &QPushButton::clicked, this, &DialogGraphSetup::slotAllOff);
    connect(close, &QPushButton::clicked, this, &DialogGraphSetup::slotClose);
    grid.addWidget(new QLabel(QStringLiteral("Y-Autoscale :"), this), row, 0);
    grid.addWidget(allOn, row, 1);
    grid.addWidget(allOff, row, controlColumns);
    grid.setRowStretch(row + 1, 1);
    grid.addWidget(close, row + 2, controlColumns, Qt::AlignRight);
}

void DialogGraphSetup::connectControls()
{
    connect(m_plotColor, &ColorSelect::signalColor, this, &DialogGraphSetup::slotPlotColor);
    connect(m_gridOn, &QCheckBox::toggled, this, &DialogGraphSetup::slotGridOn);
    connect(m_gridColor, &ColorSelect::signalColor, this, &DialogGraphSetup::slotGridColor);
    connect(m_labelColor, &ColorSelect::signalColor, this, &DialogGraphSetup::slotLabelColor);
    connect(m_labelBackColor, &ColorSelect::signalColor, this,
            &DialogGraphSetup::slotLabelBackColor);
    connect(m_cursorOn, &QCheckBox::toggled, this, &DialogGraphSetup::slotCursorOn);
    connect(m_cursorMode, QOverload<int>::of(&QComboBox::activated), this,
            &DialogGraphSetup::slotCursorMode);
    connect(m_legendOn, &QCheckBox::toggled, this, &DialogGraphSetup::slotLegendOn);
}

void DialogGraphSetup::setObject(ObjectGraph* object)
{
    m_object = object;
    refresh();
}

void DialogGraphSetup::refresh()
{
    if (m_object == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> guard(m_updating, true);
    const auto& graph = m_object->graph();
    m_plotColor->setColor(graph.backgroundColor);
    m_gridOn->setChecked(graph.gridOn);
    m_gridColor->setColor(graph.gridColor);
    m_labelColor->setColor(graph.labelColor);
    m_labelBackColor->setColor(graph.labelBackColor);
    m_cursorOn->setChecked(graph.cursorOn);
    m_cursorMode->setCurrentIndex(graph.cursorMode);
    m_legendOn->setChecked(graph.legendOn);
}

void DialogGraphSetup::slotPlotColor(const QString& color)
{
    if (canEdit()) {
        m_object->graph().backgroundColor = color;
        emit signalChanged();
    }
}

void DialogGraphSetup::slotGridOn(bool on)
{
    if (canEdit()) {
        m_object->graph().gridOn = on;
        emit signalChanged();
    }
}

void DialogGraphSetup::slotGridColor(const QString& color)
{
    if (canEdit()) {
        m_object->graph().gridColor = color;
        emit signalChanged();
    }
}

void DialogGraphSetup::slotLabelColor(const QString& color)
{
    if (canEdit()) {
        m_object->graph().labelColor = color;
        emit signalChanged();
    }
}

void DialogGraphSetup::slotLabelBackColor(const QString& color)
{
    if (canEdit()) {
        m_object->graph().labelBackColor = color;
        emit signalChanged();
    }
}

void DialogGraphSetup::slotCursorOn(bool on)
{
    if (canEdit()) {
        m_object->graph().cursorOn = on;
        emit signalChanged();
    }
}

void DialogGraphSetup::slotCursorMode(int mode)
{
    if (canEdit()) {
        m_object->graph().cursorMode = mode;
        emit signalChanged();
    }
}

void DialogGraphSetup::slotLegendOn(bool on)
{
    if (canEdit()) {
        m_object->graph().legendOn = on;
        emit signalChanged();
    }
}

void DialogGraphSetup::slotAllOn()
{
    setAllAutoScale(true);
}

void DialogGraphSetup::slotAllOff()
{
    setAllAutoScale(false);
}

void DialogGraphSetup::setAllAutoScale(bool on)
{
    if (canEdit()) {
        for (GraphParameter& row : m_object->parameters()) {
            row.parameter.autoScale = on;
        }
        emit signalChanged();
    }
}

void DialogGraphSetup::slotClose()
{
    hide();
}

} // namespace gui
