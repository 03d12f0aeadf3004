#pragma once

#include "gui/node/WidgetNsArinc.h"
#include "node/IdentificationClient.h"

namespace gui {

/// The page of the Identification Service.
class WidgetNsArincIds : public WidgetNsArinc
{
    Q_OBJECT

public:
    WidgetNsArincIds(DialogNodeService& window, QWidget* parent = nullptr);
    ~WidgetNsArincIds() override;

    void receive(MessageContainer& batch) override;

protected slots:
    void slotTimeout() override;
    void slotSend() override;

protected:
    ServiceAddress& address() override { return m_client.address(); }

private:
    void refresh();

    IdentificationClient m_client;
    QLineEdit* m_profileId = nullptr;
    QLineEdit* m_profileSubId = nullptr;
    QLineEdit* m_lruCode = nullptr;
};

} // namespace gui
