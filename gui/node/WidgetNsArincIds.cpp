#include "gui/node/WidgetNsArincIds.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>

namespace gui {

WidgetNsArincIds::WidgetNsArincIds(DialogNodeService& window, QWidget* parent)
    : WidgetNsArinc(window, parent), m_client(*this)
{
    auto* transmit = new QGroupBox(QStringLiteral("Transmit"), this);
    auto* request = new QFormLayout(transmit);
    addAddressRows(*request);
    addSendButton(*request);
    auto* receive = new QGroupBox(QStringLiteral("Receive"), this);
    auto* answer = new QFormLayout(receive);
    addStatusLabel(*answer);
    m_profileId = addField(*answer, "Profile ID :", "profileId");
    m_profileSubId = addField(*answer, "Profile Sub-ID :", "profileSubId");
    m_lruCode = addField(*answer, "LRU Code :", "lruCode");
    // Side by side: one above the other they would not fit on a small screen.
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(transmit);
    layout->addWidget(receive);
    refresh();
}

WidgetNsArincIds::~WidgetNsArincIds() = default;

void WidgetNsArincIds::slotSend()
{
    m_client.send();
    refresh();
}

void WidgetNsArincIds::receive(MessageContainer& batch)
{
    if (!m_client.receive(batch)) {
        return;
    }
    refresh();
    const IdentificationClient::Identification& answer = m_client.identification();
    m_profileId->setText(QString::number(answer.profileId));
    m_profileSubId->setText(QString::number(answer.profileSubId));
    m_lruCode->setText(QString::number(answer.lruCode));
}

void WidgetNsArincIds::slotTimeout()
{
    m_client.timeOut();
    refresh();
}

void WidgetNsArincIds::refresh()
{
    showLook(m_client.look());
}

} // namespace gui
