#pragma once

#include <QIcon>
#include <QWidget>

#include <map>

class Object;
class Project;
class QMenu;
class QTableWidget;
class QTimer;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace comm {
class CanInterface;
}

namespace gui {

class DialogInterfaceProperties;

/// The panel that manages the project: a table of the CAN interfaces with state and load, and a
/// tree of the other objects. A click on a state cell connects and disconnects.
class DialogProject : public QWidget
{
    Q_OBJECT

public:
    explicit DialogProject(QWidget* parent = nullptr);
    ~DialogProject() override;

    /// Shows the project anew; called after every change of its objects.
    void setProject(Project* project);

signals:
    void signalSelectObject(int id);
    void signalRenameObject(int id, const QString& name);
    void signalDeleteObject(int id);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private slots:
    void slotTimeout();
    void slotAddInterface();
    void slotDeleteInterface();
    void slotConfigInterface();
    void slotInterfaceClicked(int row, int column);
    void slotInterfaceDoubleClicked(int row, int column);
    void slotObjectSelect(QTreeWidgetItem* item, int column);
    void slotObjectRename(QTreeWidgetItem* item, int column);
    void slotRename(bool checked);
    void slotDelete(bool checked);
    void slotOpenStatus();

private:
    static constexpr int noRow = -1;
    static constexpr int noObject = -1;

    QWidget* buildTools();
    void buildTable();
    void buildTree();
    void connectControls();
    void rebuildTree();
    void rebuildTable();
    void addTableRow(int row, comm::CanInterface& interface);
    void refreshStates();
    void toggleConnection(comm::CanInterface& interface);
    void configure(comm::CanInterface& interface);
    void enableButtons(bool canChange);
    comm::CanInterface* interfaceOf(int row) const;

    std::map<int, comm::CanInterface*> m_rows;
    int m_selectedRow = noRow;
    Project* m_project = nullptr;
    bool m_refreshing = false;

    QTimer* m_loadTimer;
    QToolButton* m_add = nullptr;
    QToolButton* m_delete = nullptr;
    QToolButton* m_configure = nullptr;
    QTableWidget* m_table = nullptr;
    QTreeWidget* m_tree = nullptr;
    QMenu* m_menu = nullptr;
    QIcon m_groupIcon;
    DialogInterfaceProperties* m_properties = nullptr; // made at its first use
};

} // namespace gui
