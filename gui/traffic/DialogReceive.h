#pragma once

#include "gui/frame/DialogBase.h"
#include "traffic/MessageModes.h"
#include "traffic/ReceiveTable.h"

#include <string>

class ObjectReceive;
class QMenu;
class QTimer;
class QTreeWidgetItem;
class WidgetHeader;

namespace gui {

class DialogFilter;
class QwtComboBox;
class ReceiveTree;

/// The live table of the bus: one row for each identifier, updated in place. Arriving frames only
/// change the rows' records; a timer paints what has changed.
class DialogReceive : public DialogBase
{
    Q_OBJECT

public:
    /// Pause between the end of one painting and the start of the next, in milliseconds.
    static constexpr int paintPeriodMs = 100;

    /// `object` is null or outlives the window's pairing with it.
    DialogReceive(ObjectReceive* object, QWidget* parent);
    ~DialogReceive() override;

    /// The size that a new window gets in the desktop.
    QSize sizeHint() const override;

    void setObject(Object* object) override;
    void receive(MessageContainer& batch) override;
    void updateDialog() override;

    const ReceiveTable& table() const { return m_table; }

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private slots:
    void slotDoubleClick(QTreeWidgetItem* pItem, int column);
    void slotItemChanged(QTreeWidgetItem* pItem, QTreeWidgetItem* pItem1);
    void slotDiscrete(bool trigger);
    void slotDial(bool trigger);
    void slotInputOn(bool on);
    void slotFilterSetup();
    void slotFilterOn(bool on);
    void slotSetup();
    void slotInputInterface(const QString& name);
    void slotOutputOn(bool on);
    void slotDisplayMode(int mode);
    void slotNumberType(int mode);
    void slotClear();
    void slotTimeout();

private:
    static constexpr int noColumnSet = -1;

    void build();
    void connectControls();
    void showSettings();
    /// The display mode that the object's number stands for.
    DisplayMode displayMode() const;
    /// Whether batches of other interfaces than the chosen one are ignored.
    bool testsInterface() const;
    /// Columns and rows of the object's display mode.
    void buildColumns();
    /// What the object says, anything but hexadecimal being decimal.
    int numberType() const;
    void clearRows();
    void repaintAll();
    void requestDial();

    ObjectReceive* m_receive;
    ReceiveTable m_table;
    std::string m_inputInterface; // of the object, as batches name it
    QTreeWidgetItem* m_currentItem = nullptr;
    DisplayMode m_mode = DisplayMode::Can; // of the columns
    int m_columnSet = 0;
    int m_lastColumnSet = noColumnSet;
    bool m_updating = false;

    WidgetHeader* m_header = nullptr;
    ReceiveTree* m_tree = nullptr;
    QwtComboBox* m_displayMode = nullptr;
    DialogFilter* m_filterDialog = nullptr;
    QMenu* m_menu = nullptr;
    QTimer* m_timer = nullptr;
};

} // namespace gui
