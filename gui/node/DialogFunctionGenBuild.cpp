#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/node/DialogFunctionGen.h"
#include "gui/node/GeneratorNodePanel.h"
#include "gui/node/GeneratorPage.h"

#include <QCheckBox>
#include <QDial>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr QSize tabIcon(12, 12); // so that all four titles stand beside each other

constexpr auto comboActivated =
    static_cast<void (QwtComboBox::*)(int)>(&QwtComboBox::signalActivated);
constexpr auto spinChanged = static_cast<void (QSpinBox::*)(int)>(&QSpinBox::valueChanged);
constexpr auto numberChanged =
    static_cast<void (QDoubleSpinBox::*)(double)>(&QDoubleSpinBox::valueChanged);

} // namespace

void DialogFunctionGen::build()
{
    header()->setMode(WidgetHeader::Mode::Both);
    m_panel = new GeneratorNodePanel(this);
    m_tabs = buildPages();
    auto* parts = new QHBoxLayout;
    parts->setSpacing(windowMargin);
    parts->addWidget(m_panel);
    parts->addWidget(m_tabs, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    layout->setSpacing(windowMargin);
    layout->addWidget(header());
    layout->addLayout(parts, 1);
    connect(header(), &WidgetHeader::signalOutputInterface, this,
            &DialogFunctionGen::slotOutputInterface);
    connect(header(), &WidgetHeader::signalOutputOn, this, &DialogFunctionGen::slotOutputOn);
    connectPanel();
    for (GeneratorPage* page : m_pages) {
        connectPage(*page);
    }
    connect(m_tabs, &QTabWidget::currentChanged, this, &DialogFunctionGen::slotTab);
    connect(m_searchTimer, &QTimer::timeout, this, &DialogFunctionGen::slotTimeout);
    connect(m_flashTimer, &QTimer::timeout, this, &DialogFunctionGen::slotTimeoutFlash);
}

QTabWidget* DialogFunctionGen::buildPages()
{
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("channels"));
    tabs->setIconSize(tabIcon);
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        m_pages[i] = new GeneratorPage;
        tabs->addTab(m_pages[i], icon("function-gen"), QStringLiteral("Channel %1").arg(i));
    }
    return tabs;
}

void DialogFunctionGen::connectPanel()
{
    const GeneratorNodePanel::Controls& controls = m_panel->controls();
    connect(controls.search, &QPushButton::clicked, this, &DialogFunctionGen::slotSearch);
    connect(controls.nodes, &QListWidget::currentItemChanged, this, &DialogFunctionGen::slotNode);
    connect(controls.nodeId, spinChanged, this, &DialogFunctionGen::slotNodeId);
    connect(controls.setNodeId, &QPushButton::clicked, this, &DialogFunctionGen::slotFlashNodeId);
    connect(controls.baseId, spinChanged, this, &DialogFunctionGen::slotNodeCanId);
    connect(controls.setBaseId, &QPushButton::clicked, this,
            &DialogFunctionGen::slotFlashNodeCanId);
    connect(controls.baudrate, comboActivated, this, &DialogFunctionGen::slotBaudrate);
    connect(controls.setBaudrate, &QPushButton::clicked, this,
            &DialogFunctionGen::slotFlashBaudrate);
    connect(controls.flash, &QPushButton::clicked, this, &DialogFunctionGen::slotFlashParameter);
}

void DialogFunctionGen::connectPage(GeneratorPage& page)
{
    using Whole = void (DialogFunctionGen::*)(int);
    using Real = void (DialogFunctionGen::*)(double);
    const GeneratorPage::Controls& controls = page.controls();
    connect(controls.active, &QCheckBox::stateChanged, this, &DialogFunctionGen::slotOnOff);
    connect(controls.waveform, comboActivated, this, &DialogFunctionGen::slotWaveForm);
    connect(controls.canId, spinChanged, this, &DialogFunctionGen::slotId);
    connect(controls.dataType, comboActivated, this, &DialogFunctionGen::slotDataType);
    connect(controls.separation, spinChanged, this, &DialogFunctionGen::slotSeparation);
    const auto connectRow = [this](const GeneratorPage::NumberRow& row, Whole range, Whole dial,
                                   Real number) {
        connect(row.range, comboActivated, this, range);
        connect(row.dial, &QDial::valueChanged, this, dial);
        connect(row.number, numberChanged, this, number);
    };
    connectRow(controls.frequency, &DialogFunctionGen::slotFrequencyRange,
               &DialogFunctionGen::slotFrequency, &DialogFunctionGen::slotFrequency);
    connectRow(controls.amplitude, &DialogFunctionGen::slotAmplitudeRange,
               &DialogFunctionGen::slotAmplitude, &DialogFunctionGen::slotAmplitude);
    connectRow(controls.offset, &DialogFunctionGen::slotOffsetRange, &DialogFunctionGen::slotOffset,
               &DialogFunctionGen::slotOffset);
}

} // namespace gui
