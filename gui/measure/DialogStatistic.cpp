#include "gui/measure/DialogStatistic.h"

#include "core/Clock.h"
#include "gui/controls/Colors.h"
#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtPushButton.h"
#include "gui/frame/QwtIdSelect.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/measure/QwtBusLoad.h"
#include "gui/measure/QwtSpread.h"
#include "gui/measure/StatisticTree.h"
#include "message/MessageContainer.h"
#include "project/ObjectStatistic.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace gui {

namespace {

constexpr QSize firstStatisticSize(600, 500); // high enough for the plots

} // namespace

DialogStatistic::DialogStatistic(ObjectStatistic* object, QWidget* parent)
    : DialogInput(object, parent), m_statisticObject(object), m_statistic(zul::wallClock())
{
    build();
    connectControls();
    showSettings();
}

DialogStatistic::~DialogStatistic()
{
    m_tree->clearRows(); // its items refer to the table, which goes before the child widgets do
}

QSize DialogStatistic::sizeHint() const
{
    return firstStatisticSize;
}

void DialogStatistic::build()
{
    m_displayType = new QwtComboBox(0, this);
    m_displayType->setObjectName(QStringLiteral("displayType"));
    for (const StatisticViewTexts& texts : statisticViews) {
        m_displayType->addItem(QLatin1String(texts.text), static_cast<int>(texts.view));
    }
    m_idSelect = new QwtIdSelect(0, this);
    auto* clear = new QwtPushButton(QStringLiteral("Clear"), colors::clear, this);
    clear->setObjectName(QStringLiteral("clear"));
    connect(clear, &QwtPushButton::clicked, this, &DialogStatistic::slotClear);
    m_pages = new QStackedWidget(this);
    m_tree = new StatisticTree(m_statistic.table(), m_pages);
    m_tree->setObjectName(QStringLiteral("statisticTree"));
    m_spread = new QwtSpread(m_statistic.spread(), m_pages);
    m_busLoad = new QwtBusLoad(m_statistic.busLoad(), m_pages);
    m_pages->addWidget(m_tree);
    m_pages->addWidget(m_spread);
    m_pages->addWidget(m_busLoad);
    m_menu = new QMenu(this);
    connect(m_menu->addAction(QStringLiteral("Show Spreading")), &QAction::triggered, this,
            &DialogStatistic::slotDial);

    auto* top = new QHBoxLayout;
    top->addWidget(m_displayType);
    top->addWidget(m_idSelect);
    top->addStretch();
    top->addWidget(clear);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    layout->setSpacing(windowMargin);
    layout->addWidget(header());
    layout->addLayout(top);
    layout->addWidget(m_pages, 1);
    setMinimumWidth(minimumWindowWidth);
    resize(firstStatisticSize);
}

void DialogStatistic::connectControls()
{
    connect(m_displayType, QOverload<int>::of(&QwtComboBox::signalActivated), this,
            &DialogStatistic::slotDisplayType);
    connect(m_idSelect, &QwtIdSelect::signalId, this, &DialogStatistic::slotId);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &DialogStatistic::slotItemChanged);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, &DialogStatistic::slotDoubleClick);
}

void DialogStatistic::setObject(Object* object)
{
    DialogInput::setObject(object);
    m_statisticObject = dynamic_cast<ObjectStatistic*>(object);
}

std::optional<DialogInput::Input> DialogStatistic::input()
{
    if (m_statisticObject == nullptr) {
        return std::nullopt;
    }
    auto& settings = m_statisticObject->settings();
    return Input{settings.inputOn, settings.inputInterface, m_statisticObject->filter()};
}

void DialogStatistic::receive(MessageContainer& batch)
{
    if (m_statisticObject == nullptr) {
        return;
    }
    const Statistic::Update update =
        m_statistic.receive(batch, m_statisticObject->settings(), inputInterface(),
                            m_statisticObject->filter(), zul::wallClock());
    if (update == Statistic::Update::Taken) {
        header()->setInputCount(m_statistic.receivedTotal());
        showMeasurement();
    }
}

void DialogStatistic::showMeasurement()
{
    switch (view()) {
    case StatisticView::Average:
    case StatisticView::PeriodTime:
        m_tree->showTable();
        break;
    case StatisticView::Spreading:
        m_spread->showChanges();
        break;
    case StatisticView::BusLoad:
        m_busLoad->showChanges();
        break;
    }
}

StatisticView DialogStatistic::view() const
{
    return statisticView(m_statisticObject->settings().displayType);
}

void DialogStatistic::updateDialog()
{
    if (m_statisticObject != nullptr && view() != m_shownView) {
        clearForView();
    }
    showSettings();
}

void DialogStatistic::showSettings()
{
    if (m_statisticObject == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> guard(m_updating, true);
    const auto& settings = m_statisticObject->settings();
    showInput();
    m_shownView = view();
    m_displayType->setData(static_cast<int>(m_shownView));
    m_idSelect->setId(static_cast<int>(std::min<std::uint32_t>(settings.selectedId, INT32_MAX)));
    m_idSelect->setEnabled(m_shownView == StatisticView::Spreading);
    switch (m_shownView) {
    case StatisticView::Average:
    case StatisticView::PeriodTime:
        m_tree->setView(m_shownView);
        m_pages->setCurrentWidget(m_tree);
        break;
    case StatisticView::Spreading:
        m_pages->setCurrentWidget(m_spread);
        break;
    case StatisticView::BusLoad:
        m_pages->setCurrentWidget(m_busLoad);
        break;
    }
}

void DialogStatistic::clearForView()
{
    m_tree->clearRows();
    m_currentItem = nullptr;
    m_statistic.clearForView();
    m_spread->showChanges();
}

void DialogStatistic::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_currentItem != nullptr) {
        m_menu->exec(event->globalPos());
    }
}

void DialogStatistic::slotDisplayType(int view)
{
    if (canEdit()) {
        m_statisticObject->settings().displayType = view;
        clearForView();
        showSettings();
        markEdited();
    }
}

void DialogStatistic::slotId(int id)
{
    if (canEdit()) {
        m_statisticObject->settings().selectedId = static_cast<std::uint32_t>(id);
        markEdited();
        m_statistic.spread().clear();
        m_spread->showChanges();
    }
}

void DialogStatistic::slotItemChanged(QTreeWidgetItem* current, QTreeWidgetItem*)
{
    m_currentItem = current;
}

void DialogStatistic::slotDoubleClick(QTreeWidgetItem*, int)
{
    showSpreading();
}

void DialogStatistic::slotDial(bool)
{
    showSpreading();
}

void DialogStatistic::slotClear()
{
    m_tree->clearRows();
    m_currentItem = nullptr;
    m_statistic.clear();
    m_spread->showChanges();
    m_busLoad->showChanges();
}

void DialogStatistic::showSpreading()
{
    if (m_currentItem == nullptr || !canEdit()) {
        return;
    }
    m_statisticObject->settings().selectedId = m_currentItem->data(0, Qt::UserRole).toUInt();
    slotDisplayType(static_cast<int>(StatisticView::Spreading));
}

} // namespace gui
