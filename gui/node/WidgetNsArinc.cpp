#include "gui/node/WidgetNsArinc.h"

#include "gui/controls/Colors.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtPushButton.h"
#include "gui/node/DialogNodeService.h"
#include "gui/node/StateLabel.h"
#include "profile/Arinc825Id.h"
#include "profile/ProfileStore.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QTimer>

#include <array>

namespace gui {

namespace {

constexpr std::array<std::uint32_t, 3> serviceChannels{4, 5, 6}; // NSC, UDC, TMC
constexpr int codesShown = 20; // characters; the labels of function codes are up to 75 long
constexpr const char* firstStatusText = "Waiting on Response ...";

QwtComboBox* makeCombo(const char* name)
{
    auto* combo = new QwtComboBox;
    combo->setObjectName(QLatin1String(name));
    return combo;
}

QwtComboBox* makeFidCombo(const char* name)
{
    QwtComboBox* combo = makeCombo(name);
    for (const auto& [code, label] : ProfileStore::instance().currentFidTable()) {
        combo->addItem(QStringLiteral("%1 %2").arg(code).arg(label), code);
    }
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(codesShown);
    return combo;
}

} // namespace

WidgetNsArinc::WidgetNsArinc(DialogNodeService& window, QWidget* parent)
    : QWidget(parent), m_window(window), m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(timeoutMs);
    connect(m_timer, &QTimer::timeout, this, &WidgetNsArinc::slotTimeout);
}

WidgetNsArinc::~WidgetNsArinc() = default;

void WidgetNsArinc::sendToNode(MessageContainer& batch)
{
    m_window.sendToNode(batch);
}

void WidgetNsArinc::startTimer()
{
    m_timer->start();
}

void WidgetNsArinc::stopTimer()
{
    m_timer->stop();
}

WidgetNsArinc::Groups WidgetNsArinc::buildGroups()
{
    auto* transmit = new QGroupBox(QStringLiteral("Transmit"), this);
    auto* receive = new QGroupBox(QStringLiteral("Receive"), this);
    // Side by side: one above the other they would not fit on a small screen.
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(transmit);
    layout->addWidget(receive);
    return {new QFormLayout(transmit), new QFormLayout(receive)};
}

void WidgetNsArinc::addAddressRows(QFormLayout& form) const
{
    QwtComboBox* channel = makeCombo("lcc");
    for (const std::uint32_t lcc : serviceChannels) {
        channel->addItem(QLatin1String(zul::arinc825::channels[lcc].name), lcc);
    }
    QwtComboBox* client = makeFidCombo("clientFid");
    auto* local = new QCheckBox(QStringLiteral("LCL Bit"));
    local->setObjectName(QStringLiteral("lcl"));
    QwtComboBox* server = makeFidCombo("serverFid");
    auto* sid = new QSpinBox;
    sid->setObjectName(QStringLiteral("sid"));
    sid->setRange(0, maxSidEntry);
    QwtComboBox* redundancy = makeCombo("rci");
    for (std::uint32_t rci = 0; rci <= zul::arinc825::rci.max(); ++rci) {
        redundancy->addItem(QString(QLatin1Char(zul::arinc825::rciLetter(rci))), rci);
    }
    form.addRow(QStringLiteral("LCC :"), channel);
    form.addRow(QStringLiteral("Client FID :"), client);
    form.addRow(QStringLiteral("LCL :"), local);
    form.addRow(QStringLiteral("Server FID :"), server);
    form.addRow(QStringLiteral("SID :"), sid);
    form.addRow(QStringLiteral("RCI :"), redundancy);

    using Activated = void (QwtComboBox::*)(int, int);
    const auto activated = static_cast<Activated>(&QwtComboBox::signalActivated);
    connect(channel, activated, this, &WidgetNsArinc::slotLcc);
    connect(client, activated, this, &WidgetNsArinc::slotIdsClientFid);
    connect(local, &QCheckBox::stateChanged, this, &WidgetNsArinc::slotLcl);
    connect(server, activated, this, &WidgetNsArinc::slotIdsServerFid);
    connect(sid, QOverload<int>::of(&QSpinBox::valueChanged), this, &WidgetNsArinc::slotSid);
    connect(redundancy, activated, this, &WidgetNsArinc::slotRci);
}

void WidgetNsArinc::addSendButton(QFormLayout& form) const
{
    auto* send = new QwtPushButton(QStringLiteral("Send"), colors::addOrSend);
    send->setObjectName(QStringLiteral("send"));
    form.addRow(send);
    connect(send, &QwtPushButton::clicked, this, &WidgetNsArinc::slotSend);
}

void WidgetNsArinc::addStatusLabel(QFormLayout& form)
{
    m_status = new StateLabel;
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setText(QLatin1String(firstStatusText));
    form.addRow(m_status);
}

QLineEdit* WidgetNsArinc::addField(QFormLayout& form, const char* label, const char* name)
{
    auto* field = new QLineEdit;
    field->setObjectName(QLatin1String(name));
    field->setReadOnly(true);
    form.addRow(QLatin1String(label), field);
    return field;
}

void WidgetNsArinc::showLook(const StateLook& look)
{
    m_status->showLook(look);
}

void WidgetNsArinc::slotLcc(int, int value)
{
    address().lcc = static_cast<std::uint32_t>(value);
}

void WidgetNsArinc::slotIdsClientFid(int, int value)
{
    address().clientFid = static_cast<std::uint32_t>(value);
}

void WidgetNsArinc::slotLcl(int state)
{
    address().lcl = state == Qt::Checked ? 1 : 0;
}

void WidgetNsArinc::slotIdsServerFid(int, int value)
{
    address().serverFid = static_cast<std::uint32_t>(value);
}

void WidgetNsArinc::slotSid(int value)
{
    address().sid = static_cast<std::uint32_t>(value);
}

void WidgetNsArinc::slotRci(int, int value)
{
    address().rci = static_cast<std::uint32_t>(value);
}

} // namespace gui
