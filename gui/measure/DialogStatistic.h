#pragma once

#include "gui/frame/DialogInput.h"
#include "measure/Statistic.h"

class ObjectStatistic;
class QMenu;
class QStackedWidget;
class QTreeWidgetItem;

namespace gui {

class QwtBusLoad;
class QwtComboBox;
class QwtIdSelect;
class QwtSpread;
class StatisticTree;

/// Measures traffic: the rate or the period of each identifier, how the periods of one spread, or
/// the load of the bus.
class DialogStatistic : public DialogInput
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
    std::optional<Input> input() final;
    void contextMenuEvent(QContextMenuEvent* event) override;

private slots:
    void slotDisplayType(int view);
    void slotId(int id);
    void slotItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous);
    void slotDoubleClick(QTreeWidgetItem* item, int column);
    void slotDial(bool trigger);
    void slotClear();

private:
    void build();
    void connectControls();
    StatisticView view() const;
    void showSettings();
    void showMeasurement();
    void clearForView();
    void showSpreading();

    ObjectStatistic* m_statisticObject;
    Statistic m_statistic;
    StatisticView m_shownView = StatisticView::Average;
    QTreeWidgetItem* m_currentItem = nullptr;

    QwtComboBox* m_displayType = nullptr;
    QwtIdSelect* m_idSelect = nullptr;
    QStackedWidget* m_pages = nullptr;
    StatisticTree* m_tree = nullptr;
    QwtSpread* m_spread = nullptr;
    QwtBusLoad* m_busLoad = nullptr;
    QMenu* m_menu = nullptr;
};

} // namespace gui
