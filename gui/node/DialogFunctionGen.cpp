#include "gui/node/DialogFunctionGen.h"

#include "gui/frame/InputDialogs.h"
#include "gui/frame/MessageBoxes.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/node/GeneratorNodePanel.h"
#include "gui/node/GeneratorPage.h"
#include "node/GeneratorScale.h"
#include "node/GeneratorTables.h"

#include <QListWidget>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace gui {

using Kind = generator::ChannelFrame;

DialogFunctionGen::DialogFunctionGen(ObjectFunctionGen* object, QWidget* parent)
    : DialogInput(object, parent),
      m_functionGen(object),
      m_searchTimer(new QTimer(this)),
      m_flashTimer(new QTimer(this))
{
    m_searchTimer->setObjectName(QStringLiteral("searchTimer"));
    m_searchTimer->setSingleShot(true);
    m_searchTimer->setInterval(GeneratorControl::searchPeriodMs);
    m_flashTimer->setObjectName(QStringLiteral("flashTimer"));
    m_flashTimer->setSingleShot(true);
    m_flashTimer->setInterval(GeneratorControl::flashTimeoutMs);
    build();
    showSettings();
    showFlash();
    resize(sizeHint());
}

DialogFunctionGen::~DialogFunctionGen() = default;

void DialogFunctionGen::setObject(Object* object)
{
    DialogInput::setObject(object);
    m_functionGen = dynamic_cast<ObjectFunctionGen*>(object);
}

std::optional<DialogInput::Input> DialogFunctionGen::input()
{
    if (m_functionGen == nullptr) {
        return std::nullopt;
    }
    FunctionGenSettings& settings = m_functionGen->settings();
    return Input{settings.inputOn, settings.inputInterface, m_functionGen->filter()};
}

void DialogFunctionGen::forceClose()
{
    DialogInput::forceClose();
    endSearch();
    m_flashTimer->stop();
}

void DialogFunctionGen::updateDialog()
{
    showSettings();
}

void DialogFunctionGen::showSettings()
{
    if (m_functionGen == nullptr) {
        return;
    }
    showInput();
    const QScopedValueRollback<bool> guard(m_updating, true);
    const FunctionGenSettings& settings = m_functionGen->settings();
    header()->setOutputOn(settings.outputOn);
    header()->setOutputInterface(settings.outputInterface);
    m_panel->showGenerator(m_functionGen->generator());
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        m_pages[i]->showChannel(m_functionGen->channels()[i]);
    }
}

DialogFunctionGen::Channel& DialogFunctionGen::channel()
{
    return m_functionGen->channels()[m_selectedChannel];
}

void DialogFunctionGen::showChannel()
{
    const QScopedValueRollback<bool> guard(m_updating, true);
    m_pages[m_selectedChannel]->showChannel(channel());
}

void DialogFunctionGen::showFlash()
{
    m_panel->showFlash(m_control.flashLook(),
                       m_control.flashStatus() == GeneratorControl::FlashStatus::Waiting);
}

void DialogFunctionGen::receive(MessageContainer& batch)
{
    if (m_functionGen == nullptr) {
        return;
    }
    const GeneratorControl::Update update = m_control.receive(batch, *m_functionGen);
    if (!update.isOurs) {
        return;
    }
    header()->setInputCount(m_control.receivedTotal());
    if (update.found) {
        m_panel->showFound(m_control.found());
        const QScopedValueRollback<bool> guard(m_updating, true);
        m_panel->showGenerator(m_functionGen->generator());
    }
    if (update.flash) {
        showFlash();
    }
}

void DialogFunctionGen::sendFrames(MessageContainer batch)
{
    if (batch.size() > 0) {
        send(batch);
        header()->setOutputCount(m_control.sentTotal());
    }
}

void DialogFunctionGen::slotOutputInterface(const QString& name)
{
    if (canEdit()) {
        m_functionGen->settings().outputInterface = name;
        markEdited();
    }
}

void DialogFunctionGen::slotOutputOn(bool on)
{
    if (canEdit()) {
        m_functionGen->settings().outputOn = on;
        markEdited();
    }
}

void DialogFunctionGen::slotSearch()
{
    if (m_functionGen == nullptr) {
        return;
    }
    m_control.startSearch();
    m_panel->showFound(m_control.found());
    m_searchCursor = std::make_unique<BusyCursor>(Qt::WaitCursor);
    m_panel->showSearch(true, m_control.searchNode());
    m_searchTimer->start();
}

void DialogFunctionGen::slotTimeout()
{
    if (m_functionGen == nullptr) {
        endSearch();
        return;
    }
    sendFrames(m_control.searchStep(*m_functionGen));
    m_panel->showSearch(true, m_control.searchNode());
    if (m_control.isSearching()) {
        m_searchTimer->start();
        return;
    }
    endSearch();
    if (m_control.found().empty()) {
        MessageBoxes::ask(this, QMessageBox::Warning, QLatin1String(MessageBoxes::warningTitle),
                          QStringLiteral("No generators found !"), {QMessageBox::Ok});
    }
}

void DialogFunctionGen::endSearch()
{
    m_searchTimer->stop();
    m_searchCursor.reset();
    m_panel->showSearch(false, 0);
}

void DialogFunctionGen::slotNode(QListWidgetItem* current, QListWidgetItem*)
{
    if (m_functionGen == nullptr || current == nullptr) {
        return;
    }
    m_functionGen->generator().nodeId = current->data(Qt::UserRole).toInt();
    m_functionGen->generator().nodeBaseId =
        static_cast<std::int32_t>(current->data(GeneratorNodePanel::baseIdRole).toUInt());
    const QScopedValueRollback<bool> guard(m_updating, true);
    m_panel->showGenerator(m_functionGen->generator());
}

void DialogFunctionGen::slotNodeId(int nodeId)
{
    if (canEdit()) {
        m_functionGen->generator().nodeId = nodeId;
    }
}

void DialogFunctionGen::slotNodeCanId(int baseId)
{
    if (canEdit()) {
        m_functionGen->generator().nodeBaseId = baseId;
    }
}

void DialogFunctionGen::slotBaudrate(int index)
{
    if (canEdit()) {
        m_functionGen->generator().baudrate = index;
    }
}

std::optional<ObjectFunctionGen::Generator> DialogFunctionGen::confirmed(const char* question)
{
    if (m_functionGen == nullptr) {
        return std::nullopt;
    }
    const ObjectFunctionGen::Generator meant = m_functionGen->generator();
    const QPointer<DialogFunctionGen> self(this); // the window may close behind the box
    const auto answer =
        MessageBoxes::ask(this, QMessageBox::Warning, QLatin1String(MessageBoxes::warningTitle),
                          QLatin1String(question), {QMessageBox::Yes, QMessageBox::Cancel});
    if (answer != QMessageBox::Yes || self.isNull() || m_functionGen == nullptr) {
        return std::nullopt;
    }
    return meant;
}

void DialogFunctionGen::flash(MessageContainer batch)
{
    sendFrames(std::move(batch));
    showFlash();
    m_flashTimer->start();
}

void DialogFunctionGen::slotFlashNodeId()
{
    if (m_functionGen == nullptr) {
        return;
    }
    constexpr int lowestNode = 1;
    constexpr int highestNode = 100;
    const QPointer<DialogFunctionGen> self(this); // the window may close behind the box
    const ObjectFunctionGen::Generator meant = m_functionGen->generator();
    const std::optional<int> node = InputDialogs::integer(
        this, {QStringLiteral("ZUL"), QStringLiteral("Enter new node id:"),
               m_functionGen->generator().nodeId, lowestNode, highestNode, 1});
    if (!node.has_value() || self.isNull() || m_functionGen == nullptr) {
        return;
    }
    MessageContainer batch =
        m_control.setNodeId(*m_functionGen, meant, static_cast<std::uint32_t>(*node));
    {
        const QScopedValueRollback<bool> guard(m_updating, true);
        m_panel->showGenerator(m_functionGen->generator());
    }
    flash(std::move(batch));
}

void DialogFunctionGen::slotFlashNodeCanId()
{
    if (const auto meant = confirmed("Are you sure to change the CAN base id ?\n")) {
        flash(m_control.setBaseId(*m_functionGen, *meant));
    }
}

void DialogFunctionGen::slotFlashBaudrate()
{
    if (const auto meant = confirmed("Are you sure to change the baudrate ?\n")) {
        flash(m_control.setBaudrate(*m_functionGen, *meant));
    }
}

void DialogFunctionGen::slotFlashParameter()
{
    if (const auto meant = confirmed("Are you sure to store all data permanently ?\n")) {
        flash(m_control.storeData(*m_functionGen, *meant));
    }
}

void DialogFunctionGen::slotTimeoutFlash()
{
    m_control.flashTimeOut();
    showFlash();
}

void DialogFunctionGen::slotTab(int channel)
{
    if (channel >= 0 && static_cast<std::size_t>(channel) < m_pages.size()) {
        m_selectedChannel = static_cast<std::size_t>(channel);
    }
}

void DialogFunctionGen::channelChanged(MessageContainer batch)
{
    sendFrames(std::move(batch));
    markEdited();
    showChannel();
}

void DialogFunctionGen::slotOnOff(int state)
{
    if (canEdit()) {
        channel().active = state == Qt::Checked;
        channelChanged(m_control.writeActivation(*m_functionGen, m_selectedChannel));
    }
}

void DialogFunctionGen::slotWaveForm(int waveform)
{
    if (canEdit()) {
        channel().waveForm = waveform;
        channelChanged(m_control.writeConfiguration(*m_functionGen, m_selectedChannel));
    }
}

void DialogFunctionGen::slotId(int id)
{
    if (canEdit()) {
        channel().canId = static_cast<std::uint32_t>(id);
        channelChanged(m_control.writeSetting(*m_functionGen, m_selectedChannel, Kind::CanId));
    }
}

void DialogFunctionGen::slotDataType(int dataType)
{
    if (canEdit()) {
        channel().dataType = dataType;
        channelChanged(m_control.writeConfiguration(*m_functionGen, m_selectedChannel));
    }
}

void DialogFunctionGen::slotSeparation(int separation)
{
    if (canEdit()) {
        channel().separation = separation;
        channelChanged(m_control.writeConfiguration(*m_functionGen, m_selectedChannel));
    }
}

void DialogFunctionGen::slotFrequencyRange(int exponent)
{
    if (canEdit()) {
        channel().frequencyFactor = exponent;
        channelChanged({});
    }
}

void DialogFunctionGen::slotFrequency(int position)
{
    if (canEdit()) {
        const std::int32_t exponent = std::min(channel().frequencyFactor, maxFrequencyExponent);
        slotFrequency(static_cast<double>(dialNumber(position, exponent)));
    }
}

void DialogFunctionGen::slotFrequency(double frequency)
{
    if (canEdit()) {
        channel().frequency = static_cast<float>(frequency);
        channelChanged(m_control.writeSetting(*m_functionGen, m_selectedChannel, Kind::Frequency));
    }
}

void DialogFunctionGen::slotAmplitudeRange(int exponent)
{
    if (canEdit()) {
        channel().amplitudeFactor = exponent;
        channelChanged({});
    }
}

void DialogFunctionGen::slotAmplitude(int position)
{
    if (canEdit()) {
        slotAmplitude(static_cast<double>(dialNumber(position, channel().amplitudeFactor)));
    }
}

void DialogFunctionGen::slotAmplitude(double amplitude)
{
    if (canEdit()) {
        channel().amplitude = static_cast<float>(amplitude);
        channelChanged(m_control.writeSetting(*m_functionGen, m_selectedChannel, Kind::Amplitude));
    }
}

void DialogFunctionGen::slotOffsetRange(int exponent)
{
    if (canEdit()) {
        channel().offsetFactor = exponent;
        channelChanged({});
    }
}

void DialogFunctionGen::slotOffset(int position)
{
    if (canEdit()) {
        slotOffset(static_cast<double>(dialNumber(position, channel().offsetFactor)));
    }
}

void DialogFunctionGen::slotOffset(double offset)
{
    if (canEdit()) {
        channel().offset = static_cast<float>(offset);
        channelChanged(m_control.writeSetting(*m_functionGen, m_selectedChannel, Kind::Offset));
    }
}

} // namespace gui
