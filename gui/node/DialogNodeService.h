#pragma once

#include "gui/frame/DialogBase.h"

#include <cstdint>
#include <string>

class ObjectNodeService;
class QStackedWidget;
class QTabWidget;

namespace gui {

class QwtComboBox;
class WidgetInterfaceSelect;
class WidgetNsArinc;

/// Runs node services, as the client, against a server on the bus.
class DialogNodeService : public DialogBase
{
    Q_OBJECT

public:
    /// `object` is null or outlives the window's pairing with it.
    DialogNodeService(ObjectNodeService* object, QWidget* parent);
    ~DialogNodeService() override;

    void setObject(Object* object) override;
    void receive(MessageContainer& batch) override;
    void updateDialog() override;

    /// Sends a batch of a page through the selected interface.
    void sendToNode(MessageContainer& batch);

private slots:
    void slotServiceSelect(int index, int service);
    void slotInterface(const QString& name);

private:
    void build();
    QWidget* buildArinc825();
    void showSettings();

    ObjectNodeService* m_nodeService;
    std::int32_t m_service = 0; ///< number of the selected service
    std::string m_interface;    ///< the selected one, as batches name it

    WidgetInterfaceSelect* m_interfaceSelect = nullptr;
    QTabWidget* m_tabs = nullptr;
    QwtComboBox* m_services = nullptr;
    QStackedWidget* m_pages = nullptr;
};

} // namespace gui
