#pragma once

#include "gui/frame/DialogBase.h"
#include "measure/Statistic.h"

#include <string>

class ObjectStatistic;
class QMenu;
class QStackedWidget;
class QTreeWidgetItem;
class WidgetHeader;

namespace gui {

class DialogFilter;
class QwtBusLoad;
class QwtComboBox;
class QwtIdSelect;
class QwtSpread;
class StatisticTree;

/// Measures traffic: the rate or the period of each identifier, how the periods of one spread, or
/// the load of the bus.
class DialogStatistic : public DialogBase
{
    Q_OBJECT

public:
    /// `object` is null or outlives the window's pairing with it.
    DialogStatistic(ObjectStatistic* object, QWidget* parent);
    ~DialogStatistic() override;

    /// The size that a new window gets in the desktop.
    QSize sizeHint() const override;

    void setObject(Object* object) override;
    void receive(MessageContainer& batch) override;
    void updateDialog() override;

    const Statistic& statistic() const { return m_statistic; }

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private slots:
    void slotInputOn(bool on);
    void slotFilterSetup();
    void slotFilterOn(bool on);
    void slotSetup();
    void slotInputInterface(const QString& name);
    void slotDisplayType(int view);
    void slotId(int id);
    void slotItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous);
    void slotDoubleClick(QTreeWidgetItem* item, int column);
    void slotDial(bool trigger);
    void slotClear();

private:
    void build();
    void connectControls();
    bool canEdit() const { return m_statisticObject != nullptr && !m_updating; }
    StatisticView view() const;
    void showSettings();
    void showMeasurement();
    void clearForView();
    void showSpreading();

    ObjectStatistic* m_statisticObject;
    Statistic m_statistic;
    std::string m_inputInterface; // of the object, as batches name it
    StatisticView m_shownView = StatisticView::Average;
    QTreeWidgetItem* m_currentItem = nullptr;
    bool m_updating = false;

    WidgetHeader* m_header = nullptr;
    QwtComboBox* m_displayType = nullptr;
    QwtIdSelect* m_idSelect = nullptr;
    QStackedWidget* m_pages = nullptr;
    StatisticTree* m_tree = nullptr;
    QwtSpread* m_spread = nullptr;
    QwtBusLoad* m_busLoad = nullptr;
    DialogFilter* m_filterDialog = nullptr;
    QMenu* m_menu = nullptr;
};

} // namespace gui
