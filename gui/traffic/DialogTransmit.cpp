#include "gui/traffic/DialogTransmit.h"

#include "core/Clock.h"
#include "core/Console.h"
#include "gui/controls/Colors.h"
#include "gui/controls/Look.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtPushButton.h"
#include "gui/controls/WheelGuard.h"
#include "gui/frame/MessageBoxes.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/traffic/DialogTransmitSetup.h"
#include "gui/traffic/QwtTransmitButton.h"
#include "gui/traffic/TransmitTable.h"
#include "gui/traffic/Widget825Raw.h"
#include "gui/traffic/WidgetCanAs.h"
#include "gui/traffic/WidgetTransmitCan.h"
#include "traffic/MessageEntry.h"

#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace gui {

namespace {

constexpr int minimumWidthPixels = 400;
constexpr int firstWidth = 890; // all columns are in view
constexpr int leastFirstWidth = 720;
constexpr int panelsWidth = 300; // of the main window, beside its tool windows
constexpr int firstHeight = 350;

/// How a line stands in its row, by the display mode.
struct RowLook
{
    DisplayMode mode;
    int rowHeight;   ///< pixels; 0 where the payload gives it
    int columnWidth; ///< pixels
};

constexpr std::array<RowLook, 3> rowLooks{{{DisplayMode::Can, 0, 700},
                                           {DisplayMode::CanAerospace, 80, 700},
                                           {DisplayMode::Arinc825Raw, 0, 550}}};
constexpr int emptyRowHeight = 25; // of a display mode that has no editor

const RowLook* rowLook(int displayMode)
{
    const auto* found = std::find_if(rowLooks.begin(), rowLooks.end(), [=](const RowLook& look) {
        return static_cast<int>(look.mode) == displayMode;
    });
    return found != rowLooks.end() ? found : nullptr;
}

// Also that of a row whose editor is not there yet.
int rowHeight(int displayMode, std::uint32_t byteCount)
{
    const RowLook* look = rowLook(displayMode);
    if (look == nullptr) {
        return emptyRowHeight;
    }
    return look->rowHeight != 0 ? look->rowHeight : messageentry::editorHeight(byteCount);
}

} // namespace

DialogTransmit::DialogTransmit(ObjectTransmit* object, QWidget* parent)
    : DialogBase(object, parent), m_transmit(object), m_timer(new QTimer(this))
{
    build();
    connectControls();
    connectButtons();
    showSettings();
    rebuildTable();
    m_timer->setTimerType(Qt::PreciseTimer);
    m_timer->start(Transmitter::tickPeriodMs);
}

DialogTransmit::~DialogTransmit()
{
    m_table->startOver(); // no editor is to give anything back from here on
}

QSize DialogTransmit::sizeHint() const
{
    const int room = mainWindow() != nullptr ? mainWindow()->width() - panelsWidth : firstWidth;
    return {std::clamp(room, leastFirstWidth, firstWidth), firstHeight};
}

void DialogTransmit::build()
{
    setWindowTitle(QStringLiteral("Transmit Messages"));
    m_header = new WidgetHeader(this);
    m_header->setMode(WidgetHeader::Mode::Output);
    m_autoTx = new QToolButton(this);
    m_autoTx->setObjectName(QStringLiteral("autoTx"));
    m_autoTx->setAutoRaise(true);
    m_autoTx->setToolTip(QStringLiteral("Transmit each message when it is edited"));
    m_header->addCustomWidget(m_autoTx);
    m_header->addCustomStretch();
    m_table = new TransmitTable(this);
    m_table->setObjectName(QStringLiteral("transmitTable"));
    m_displayMode = new QwtComboBox(0, this);
    m_displayMode->setObjectName(QStringLiteral("displayMode"));
    WheelGuard::protect(m_displayMode);
    for (const DisplayModeTexts& mode : displayModes) {
        if (mode.transmit != nullptr) {
            m_displayMode->addItem(QLatin1String(mode.transmit), static_cast<int>(mode.mode));
        }
    }
    m_add = makeButton("New Message", "add", colors::addOrSend);
    m_delete = makeButton("Delete Selected", "delete", colors::remove);
    m_clear = makeButton("Clear", "clear", colors::clear);
    m_transmitSelected = makeButton("Transmit Selected", "transmit", colors::addOrSend);
    m_setup = new DialogTransmitSetup(this);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_displayMode);
    bottom->addStretch();
    for (QPushButton* button : {m_add, m_delete, m_clear, m_transmitSelected}) {
        bottom->addWidget(button);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    layout->setSpacing(windowMargin);
    layout->addWidget(m_header);
    layout->addWidget(m_table, 1);
    layout->addLayout(bottom);
    setMinimumWidth(minimumWidthPixels);
    resize(DialogTransmit::sizeHint());
}

QPushButton* DialogTransmit::makeButton(const char* text, const char* objectName,
                                        const QColor& background)
{
    auto* button = new QwtPushButton(QLatin1String(text), background, this);
    button->setObjectName(QLatin1String(objectName));
    return button;
}

void DialogTransmit::connectControls()
{
    connect(m_header, &WidgetHeader::signalSetup, this, &DialogTransmit::slotSetup);
    connect(m_header, &WidgetHeader::signalOutputOn, this, &DialogTransmit::slotOutputOn);
    connect(m_header, &WidgetHeader::signalNumberType, this, &DialogTransmit::slotNumberType);
    connect(m_header, &WidgetHeader::signalOutputInterface, this,
            &DialogTransmit::slotOutputInterface);
    connect(m_autoTx, &QToolButton::clicked, this, &DialogTransmit::slotAutoTx);
    connect(m_table, &TransmitTable::signalControlsWanted, this, &DialogTransmit::addControls);
    connect(m_table, &QTableWidget::itemChanged, this, &DialogTransmit::slotTable);
    connect(m_displayMode, QOverload<int, int>::of(&QwtComboBox::signalActivated), this,
            &DialogTransmit::slotDisplayMode);
    connect(m_setup, &DialogTransmitSetup::signalUpdate, this, &DialogTransmit::slotUpdate);
    connect(m_timer, &QTimer::timeout, this, &DialogTransmit::slotTimeout);
}

void DialogTransmit::connectButtons()
{
    connect(m_add, &QPushButton::clicked, this, &DialogTransmit::slotAdd);
    connect(m_delete, &QPushButton::clicked, this, &DialogTransmit::slotDelete);
    connect(m_clear, &QPushButton::clicked, this, &DialogTransmit::slotClear);
    connect(m_transmitSelected, &QPushButton::clicked, this, &DialogTransmit::slotTransmit);
}

void DialogTransmit::setObject(Object* object)
{
    DialogBase::setObject(object);
    m_transmit = dynamic_cast<ObjectTransmit*>(object);
    m_setup->setObject(m_transmit);
    rebuildTable(); // the rows point to lines of the object that was
}

void DialogTransmit::updateDialog()
{
    showSettings();
}

void DialogTransmit::forceClose()
{
    DialogBase::forceClose();
    m_timer->stop();
}

void DialogTransmit::showSettings()
{
    if (m_transmit == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> guard(m_updating, true);
    const auto& settings = m_transmit->settings();
    m_displayMode->setData(settings.displayMode);
    m_header->setOutputOn(settings.outputOn);
    m_header->setOutputInterface(settings.outputInterface);
    m_header->setNumberType(numberType());
    showAutoTx(settings.autoTx);
}

void DialogTransmit::showAutoTx(bool on)
{
    QFont font = m_autoTx->font();
    font.setBold(on);
    m_autoTx->setFont(font);
    m_autoTx->setText(on ? QStringLiteral("Auto Tx On") : QStringLiteral("Auto Tx Off"));
    QPalette colors = m_autoTx->palette();
    colors.setColor(m_autoTx->foregroundRole(), on ? colors::activeText : colors::idleText);
    m_autoTx->setPalette(colors);
}

void DialogTransmit::rebuildTable()
{
    const QScopedValueRollback<bool> guard(m_updating, true);
    m_table->setUpdatesEnabled(false);
    m_table->startOver();
    const int count = m_transmit != nullptr ? static_cast<int>(m_transmit->lines().size()) : 0;
    for (int i = 0; i < count; ++i) {
        addRow(i);
    }
    m_table->requestControls();
    m_table->scrollToBottom();
    m_table->setUpdatesEnabled(true);
}

void DialogTransmit::addRow(int index)
{
    SendMsg* line = transmitLine(*m_transmit, index);
    const int row = m_table->appendLine(line);
    m_table->setRowHeight(row, rowHeight(m_transmit->settings().displayMode, line->byteCount));
}

void DialogTransmit::addControls(int row)
{
    const SendMsg* line = m_transmit != nullptr ? transmitLine(*m_transmit, row) : nullptr;
    if (line != nullptr) {
        const QScopedValueRollback<bool> guard(m_updating, true);
        addEditor(row, *line);
        addButton(row, *line);
    }
}

void DialogTransmit::addEditor(int row, const SendMsg& line)
{
    const RowLook* look = rowLook(m_transmit->settings().displayMode);
    MessageEditor* editor = makeEditor();
    if (look == nullptr || editor == nullptr) {
        return;
    }
    editor->setNumberType(numberType());
    if (auto* withPayload = qobject_cast<PayloadEditor*>(editor)) {
        connect(withPayload, &PayloadEditor::signalHeight, this,
                &DialogTransmit::slotTransmitHeight);
    }
    editor->setMessage(row, line);
    m_table->setEditor(row, editor, look->columnWidth);
    // Last: what an editor tells while it takes its line is no edit, and is not to be sent.
    connect(editor, &MessageEditor::signalChanged, this, &DialogTransmit::slotTransmitCan);
}

MessageEditor* DialogTransmit::makeEditor()
{
    switch (static_cast<DisplayMode>(m_transmit->settings().displayMode)) {
    case DisplayMode::Can:
        return new WidgetTransmitCan(m_table);
    case DisplayMode::CanAerospace:
        return new WidgetCanAs(m_table);
    case DisplayMode::Arinc825Raw:
        return new Widget825Raw(m_table);
    default:
        return nullptr;
    }
}

void DialogTransmit::addButton(int row, const SendMsg& line)
{
    auto* button = new QwtTransmitButton(row, m_table);
    button->setRate(line.rate);
    button->setMode(line.running);
    connect(button, &QwtTransmitButton::transmitSingle, this, &DialogTransmit::slotTransmitSingle);
    connect(button, &QwtTransmitButton::transmitMode, this, &DialogTransmit::slotTransmitMode);
    connect(button, &QwtTransmitButton::transmitRate, this, &DialogTransmit::slotTransmitRate);
    m_table->setButton(row, button);
}

void DialogTransmit::slotSetup()
{
    if (!m_updating) {
        m_setup->setObject(m_transmit);
        m_setup->show();
    }
}

// Deliberate: the project does not count as changed by the output switch.
void DialogTransmit::slotOutputOn(bool on)
{
    if (!m_updating && m_transmit != nullptr) {
        m_transmit->settings().outputOn = on;
    }
}

void DialogTransmit::slotTable(QTableWidgetItem* pItem)
{
    if (m_updating || pItem == nullptr || m_transmit == nullptr) {
        return;
    }
    SendMsg* line = TransmitTable::lineOf(*pItem);
    if (line == nullptr || line != transmitLine(*m_transmit, pItem->row())) {
        return;
    }
    line->name = pItem->text();
    if (MessageEditor* editor = m_table->editor(pItem->row())) {
        editor->setName(line->name); // the next edit gives the line back whole
    }
    markEdited();
}

void DialogTransmit::slotTransmitCan(int index, const SendMsg& msg)
{
    if (m_transmit == nullptr) {
        return;
    }
    // Deliberate: an edit that is not sent at once does not mark the project as changed.
    if (auto batch = m_transmitter.edit(*m_transmit, index, msg)) {
        send(*batch);
        markEdited();
        showCount();
    }
}

void DialogTransmit::slotTransmitHeight(int index, unsigned int height)
{
    constexpr unsigned int highest = std::numeric_limits<std::int16_t>::max();
    if (index >= 0 && index < m_table->rowCount()) {
        m_table->setRowHeight(index, static_cast<int>(std::min(height, highest)));
    }
}

void DialogTransmit::slotDisplayMode(int, int mode)
{
    m_table->commitEntry();
    if (m_transmit != nullptr) {
        m_transmit->settings().displayMode = mode;
        markEdited();
        rebuildTable();
    }
}

void DialogTransmit::slotNumberType(int numberType)
{
    m_table->commitEntry();
    if (m_transmit != nullptr) {
        m_transmit->settings().numberType = numberType;
        markEdited();
        rebuildTable();
    }
}

void DialogTransmit::slotAdd()
{
    if (m_transmit == nullptr) {
        return;
    }
    {
        const QScopedValueRollback<bool> guard(m_updating, true);
        m_table->setUpdatesEnabled(false);
        m_transmit->lines().push_back(std::make_unique<SendMsg>());
        addRow(static_cast<int>(m_transmit->lines().size()) - 1);
        m_table->requestControls();
        m_table->setUpdatesEnabled(true);
    }
    m_table->scrollToBottom();
    markEdited();
}

void DialogTransmit::slotDelete()
{
    if (!isConfirmed("Are you sure to delete all selected messages ?\n")) {
        return;
    }
    const std::set<int> rows = m_table->selectedRows();
    auto& lines = m_transmit->lines();
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        if (transmitLine(*m_transmit, *row) != nullptr) {
            lines.erase(lines.begin() + *row);
        }
    }
    rebuildTable();
    markEdited();
}

void DialogTransmit::slotClear()
{
    if (isConfirmed("Are you sure to delete all messages ?\n")) {
        m_transmit->lines().clear();
        rebuildTable();
        markEdited();
    }
}

// False also without an object.
bool DialogTransmit::isConfirmed(const char* question)
{
    if (m_transmit == nullptr) {
        return false;
    }
    const auto answer =
        MessageBoxes::ask(this, QMessageBox::Warning, QLatin1String(MessageBoxes::warningTitle),
                          QLatin1String(question), {QMessageBox::Yes, QMessageBox::Cancel});
    return answer == QMessageBox::Yes && m_transmit != nullptr;
}

void DialogTransmit::slotTransmit()
{
    if (m_transmit != nullptr) {
        sendAll(m_transmitter.sendLines(*m_transmit, m_table->selectedRows()));
    }
}

void DialogTransmit::slotTransmitSingle(int index)
{
    if (m_transmit == nullptr) {
        return;
    }
    if (auto batch = m_transmitter.sendLine(*m_transmit, index)) {
        send(*batch);
        showCount();
        const SendMsg* line = transmitLine(*m_transmit, index);
        zul::print("Transmit Id 0x%x Mode %d\n", line->id, static_cast<int>(line->mode));
    }
}

void DialogTransmit::sendAll(std::vector<MessageContainer> batches)
{
    for (MessageContainer& batch : batches) {
        send(batch);
    }
    showCount();
}

void DialogTransmit::slotTransmitMode(int index, int mode)
{
    SendMsg* line = m_transmit != nullptr ? transmitLine(*m_transmit, index) : nullptr;
    if (line != nullptr) {
        line->running = mode;
        markEdited();
    }
}

void DialogTransmit::slotTransmitRate(int index, int rate)
{
    SendMsg* line = m_transmit != nullptr ? transmitLine(*m_transmit, index) : nullptr;
    if (line != nullptr) {
        line->rate = rate;
        markEdited();
    }
}

void DialogTransmit::slotAutoTx()
{
    if (!m_updating && m_transmit != nullptr) {
        m_transmit->settings().autoTx = !m_transmit->settings().autoTx;
        markEdited();
        updateDialog();
    }
}

void DialogTransmit::slotOutputInterface(const QString& name)
{
    if (m_transmit != nullptr) {
        m_transmit->settings().outputInterface = name;
        markEdited();
    }
}

void DialogTransmit::slotUpdate()
{
    rebuildTable();
    markEdited();
}

void DialogTransmit::slotTimeout()
{
    if (m_transmit == nullptr) {
        return;
    }
    if (auto batch = m_transmitter.tick(*m_transmit, zul::wallClock())) {
        send(*batch);
        showCount();
    }
}

void DialogTransmit::showCount()
{
    m_header->setOutputCount(m_transmitter.transmitted());
}

int DialogTransmit::numberType() const
{
    constexpr int hexadecimal = static_cast<int>(NumberType::Hexadecimal);
    return isHexadecimal(m_transmit->settings().numberType) ? hexadecimal : 0;
}

} // namespace gui
