#pragma once

#include <QDialog>

#include <map>
#include <string>

class Device;
class QGroupBox;
class QListWidget;
class QListWidgetItem;
class QVBoxLayout;
class WidgetProperty;

namespace comm {
class CanInterface;
}

namespace gui {

/// Chooses the device module of an interface and edits the device's properties. Changes reach the
/// device at once: there is no cancel.
class DialogInterfaceProperties : public QDialog
{
    Q_OBJECT

public:
    explicit DialogInterfaceProperties(QWidget* parent = nullptr);

    /// Shows another interface, which must be closed, or none.
    void setInterface(comm::CanInterface* interface);

private slots:
    void slotChangePage(QListWidgetItem* current, QListWidgetItem* previous);
    void slotChangePage(QListWidgetItem* item);
    void slotValueChanged(const std::string& key, const std::string& value);
    void slotClose();

private:
    void rebuildEditors();
    void fillDevices();
    void refreshValues();

    std::string m_lastKey;
    std::map<std::string, WidgetProperty*> m_editors;
    QListWidgetItem* m_lastItem = nullptr;
    comm::CanInterface* m_interface = nullptr;
    Device* m_device = nullptr;
    bool m_refreshing = false;

    QListWidget* m_devices = nullptr;
    QVBoxLayout* m_pageLayout = nullptr;
    QWidget* m_page = nullptr;
};

} // namespace gui
