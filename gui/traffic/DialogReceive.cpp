#include "gui/traffic/DialogReceive.h"

#include "core/Clock.h"
#include "core/Latin1.h"
#include "gui/controls/Colors.h"
#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtPushButton.h"
#include "gui/controls/WheelGuard.h"
#include "gui/frame/DialogFilter.h"
#include "gui/frame/MessageGuiDialog.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/traffic/ReceiveTree.h"
#include "message/MessageContainer.h"
#include "profile/ProfileStore.h"
#include "project/ObjectReceive.h"
#include "traffic/ReceiveColumns.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTimer>
#include <QVBoxLayout>

namespace gui {

DialogReceive::DialogReceive(ObjectReceive* object, QWidget* parent)
    : DialogBase(object, parent), m_receive(object), m_timer(new QTimer(this))
{
    build();
    connectControls();
    m_timer->setSingleShot(true);
    m_timer->start(paintPeriodMs);
    showSettings();
    buildColumns();
}

DialogReceive::~DialogReceive()
{
    m_tree->clearRows(); // its items refer to the table, which goes before the child widgets do
}

QSize DialogReceive::sizeHint() const
{
    return firstWindowSize;
}

void DialogReceive::build()
{
    m_header = new WidgetHeader(this);
    m_header->setMode(WidgetHeader::Mode::Input);
    m_tree = new ReceiveTree(this);
    m_tree->setObjectName(QStringLiteral("receiveTree"));
    m_displayMode = new QwtComboBox(0, this);
    m_displayMode->setObjectName(QStringLiteral("displayMode"));
    for (const DisplayModeTexts& texts : displayModes) {
        if (texts.receive != nullptr) {
            m_displayMode->addItem(QLatin1String(texts.receive), static_cast<int>(texts.mode));
        }
    }
    WheelGuard::protect(m_displayMode); // another mode would empty the tree
    auto* clear = new QwtPushButton(QStringLiteral("Clear"), colors::clear, this);
    clear->setObjectName(QStringLiteral("clear"));
    clear->setFixedHeight(lowButtonHeight);
    connect(clear, &QwtPushButton::clicked, this, &DialogReceive::slotClear);
    m_filterDialog = new DialogFilter(this);
    m_menu = new QMenu(this);
    connect(m_menu->addAction(QStringLiteral("Open Dial Dialog")), &QAction::triggered, this,
            &DialogReceive::slotDial);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_displayMode);
    bottom->addStretch();
    bottom->addWidget(clear);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    layout->setSpacing(windowMargin);
    layout->addWidget(m_header);
    layout->addWidget(m_tree, 1);
    layout->addLayout(bottom);
    setMinimumWidth(minimumWindowWidth);
    resize(firstWindowSize);
}

void DialogReceive::connectControls()
{
    connect(m_header, &WidgetHeader::signalInputOn, this, &DialogReceive::slotInputOn);
    connect(m_header, &WidgetHeader::signalFilterOn, this, &DialogReceive::slotFilterOn);
    connect(m_header, &WidgetHeader::signalFilterSetup, this, &DialogReceive::slotFilterSetup);
    connect(m_header, &WidgetHeader::signalSetup, this, &DialogReceive::slotSetup);
    connect(m_header, &WidgetHeader::signalInputInterface, this,
            &DialogReceive::slotInputInterface);
    connect(m_header, &WidgetHeader::signalOutputOn, this, &DialogReceive::slotOutputOn);
    connect(m_header, &WidgetHeader::signalNumberType, this, &DialogReceive::slotNumberType);
    connect(m_displayMode, QOverload<int>::of(&QwtComboBox::signalActivated), this,
            &DialogReceive::slotDisplayMode);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, &DialogReceive::slotDoubleClick);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &DialogReceive::slotItemChanged);
    connect(m_timer, &QTimer::timeout, this, &DialogReceive::slotTimeout);
}

void DialogReceive::setObject(Object* object)
{
    DialogBase::setObject(object);
    m_receive = dynamic_cast<ObjectReceive*>(object);
    m_filterDialog->letGo(); // the filter was the former object's
}

void DialogReceive::receive(MessageContainer& batch)
{
    if (m_receive == nullptr || (testsInterface() && m_inputInterface != batch.srcDest())) {
        return;
    }
    const auto& settings = m_receive->settings();
    m_table.update(batch, settings.inputOn, m_receive->filter(), zul::wallClock());
    m_tree->addMissingRows(m_table, numberType());
}

bool DialogReceive::testsInterface() const
{
    // Deliberate: the ARINC 825 modes take the batches of all interfaces, whatever is chosen.
    const bool isCan = m_mode == DisplayMode::Can || m_mode == DisplayMode::CanAerospace;
    return isCan && m_inputInterface != allInterfaces;
}

void DialogReceive::updateDialog()
{
    showSettings();
    if (m_receive != nullptr && m_mode != displayMode()) {
        buildColumns();
        repaintAll();
    }
}

void DialogReceive::showSettings()
{
    if (m_receive == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> guard(m_updating, true);
    const auto& settings = m_receive->settings();
    m_inputInterface = zul::toLatin1(settings.inputInterface);
    m_header->setInputOn(settings.inputOn);
    m_header->setFilterOn(m_receive->filter().isOn());
    m_header->setOutputOn(false);
    m_header->setInputInterface(settings.inputInterface);
    m_header->setNumberType(numberType());
    m_displayMode->setData(static_cast<int>(displayMode()));
}

DisplayMode DialogReceive::displayMode() const
{
    return receiveDisplayMode(m_receive->settings().displayMode);
}

void DialogReceive::buildColumns()
{
    if (m_receive == nullptr) {
        return;
    }
    m_mode = displayMode();
    const int columnSet = static_cast<int>(receiveColumnSet(m_mode));
    if (columnSet != m_columnSet) {
        clearRows();
    }
    m_columnSet = columnSet;
    if (m_mode == DisplayMode::Arinc825Profile) {
        m_table.showParameters(ProfileStore::instance().parameterIndex());
    } else {
        m_table.showIdentifiers();
    }
    m_tree->buildColumns(m_mode);
}

void DialogReceive::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_currentItem != nullptr) {
        m_menu->exec(event->globalPos());
    }
}

void DialogReceive::slotDoubleClick(QTreeWidgetItem*, int)
{
    requestDial();
}

void DialogReceive::slotItemChanged(QTreeWidgetItem* pItem, QTreeWidgetItem*)
{
    m_currentItem = pItem;
}

// These three have nothing to do here; they let the header be wired alike in all windows.
void DialogReceive::slotDiscrete(bool) {}
void DialogReceive::slotSetup() {}
void DialogReceive::slotOutputOn(bool) {}

void DialogReceive::slotDial(bool)
{
    requestDial();
}

void DialogReceive::slotInputOn(bool on)
{
    if (!m_updating && m_receive != nullptr) {
        m_receive->settings().inputOn = on;
        markEdited();
    }
}

void DialogReceive::slotFilterSetup()
{
    if (!m_updating && m_receive != nullptr) {
        m_filterDialog->edit(m_receive->filter());
        markEdited();
    }
}

void DialogReceive::slotFilterOn(bool on)
{
    if (!m_updating && m_receive != nullptr) {
        m_receive->filter().setOn(on);
        markEdited();
    }
}

void DialogReceive::slotInputInterface(const QString& name)
{
    if (m_receive != nullptr) {
        m_receive->settings().inputInterface = name;
        m_inputInterface = zul::toLatin1(name);
        markEdited();
    }
}

void DialogReceive::slotDisplayMode(int mode)
{
    if (m_updating || m_receive == nullptr) {
        return;
    }
    m_receive->settings().displayMode = mode;
    markEdited();
    buildColumns();
    // Deliberate: the first switch empties the rows in any case, since no column set was last.
    if (m_columnSet != m_lastColumnSet) {
        clearRows();
        m_lastColumnSet = m_columnSet;
    }
    repaintAll();
}

void DialogReceive::slotNumberType(int mode)
{
    if (m_receive != nullptr) {
        m_receive->settings().numberType = mode;
        markEdited();
        repaintAll();
    }
}

void DialogReceive::slotClear()
{
    if (!m_updating) {
        clearRows();
    }
}

void DialogReceive::slotTimeout()
{
    if (m_receive != nullptr) {
        m_tree->paintDirtyRows(m_table, numberType());
    }
    m_header->setInputCount(m_table.receivedTotal());
    m_timer->start(paintPeriodMs); // last, so that slow painting cannot pile up
}

int DialogReceive::numberType() const
{
    constexpr int hexadecimal = static_cast<int>(NumberType::Hexadecimal);
    return m_receive->settings().numberType == hexadecimal ? hexadecimal : 0;
}

void DialogReceive::clearRows()
{
    m_tree->clearRows();
    m_table.clear();
    m_currentItem = nullptr;
}

void DialogReceive::repaintAll()
{
    m_table.markAllDirty();
    m_tree->paintDirtyRows(m_table, numberType());
}

void DialogReceive::requestDial()
{
    if (m_currentItem == nullptr) {
        return;
    }
    // Deliberate: lines below a row carry no identifier, nor does any item of the display modes CAN
    // and CANaerospace: 0 goes out for them.
    const int id = m_currentItem->data(0, Qt::UserRole).toInt();
    guiRequest(std::make_unique<MessageGuiDialog>(static_cast<int>(ObjectType::Dial), id));
}

} // namespace gui
