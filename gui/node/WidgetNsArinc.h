#pragma once

#include "node/ServiceAddress.h"
#include "node/ServiceLink.h"
#include "node/StateLook.h"

#include <QWidget>

class MessageContainer;
class QFormLayout;
class QLineEdit;
class QTimer;

namespace gui {

class DialogNodeService;
class StateLabel;

/// What the pages of the ARINC 825 node services have in common: the fields of the identifier, the
/// state, the clock that waits for the server, and the way to the bus.
class WidgetNsArinc : public QWidget, public ServiceLink
{
    Q_OBJECT

public:
    /// `window` outlives the page.
    WidgetNsArinc(DialogNodeService& window, QWidget* parent);
    ~WidgetNsArinc() override;

    /// One batch from the interface that is selected, for the page that is shown.
    virtual void receive(MessageContainer& batch) = 0;

    void sendToNode(MessageContainer& batch) override;
    void startTimer() override;
    void stopTimer() override;

protected slots:
    virtual void slotTimeout() = 0;
    void slotLcc(int index, int value);
    void slotIdsClientFid(int index, int value);
    void slotLcl(int state);
    void slotIdsServerFid(int index, int value);
    void slotSid(int value);
    void slotRci(int index, int value);
    virtual void slotSend() = 0;

protected:
    /// The request's fields, which the controls write.
    virtual ServiceAddress& address() = 0;

    /// The forms of the two groups of a page.
    struct Groups
    {
        QFormLayout* transmit;
        QFormLayout* receive;
    };

    Groups buildGroups();
    /// Adds the rows of the fields; the address must be there.
    void addAddressRows(QFormLayout& form) const;
    void addSendButton(QFormLayout& form) const;
    /// Adds the label that `showLook` sets.
    void addStatusLabel(QFormLayout& form);
    /// Adds a field that only shows.
    static QLineEdit* addField(QFormLayout& form, const char* label, const char* name);
    void showLook(const StateLook& look);

private:
    DialogNodeService& m_window;
    QTimer* m_timer;
    StateLabel* m_status = nullptr;
};

} // namespace gui
