#include "gui/node/WidgetNsArincIds.h"

#include <QFormLayout>
#include <QLineEdit>

namespace gui {

WidgetNsArincIds::WidgetNsArincIds(DialogNodeService& window, QWidget* parent)
    : WidgetNsArinc(window, parent), m_client(*this)
{
    const Groups groups = buildGroups();
    addAddressRows(*groups.transmit);
    addSendButton(*groups.transmit);
    addStatusLabel(*groups.receive);
    m_profileId = addField(*groups.receive, "Profile ID :", "profileId");
    m_profileSubId = addField(*groups.receive, "Profile Sub-ID :", "profileSubId");
    m_lruCode = addField(*groups.receive, "LRU Code :", "lruCode");
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
