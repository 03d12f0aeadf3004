#pragma once

#include "gui/frame/DialogInput.h"
#include "measure/GraphFeed.h"

#include <memory>

class GraphEngine;
class ObjectGraph;
class QTimer;
struct ProfileParameter;
class WidgetGraph;

namespace gui {

class DialogGraphSetup;
class GraphParameterTable;
class GraphToolBar;

/// The oscilloscope: plots parameters of the frames that come, over the time since the window was
/// made. What it plots and how stands in its object; samples go with the window.
class DialogGraph : public DialogInput
{
    Q_OBJECT

public:
    static constexpr int maxParameters = 16;
    /// Period of the steps of a held zoom button, in milliseconds.
    static constexpr int zoomPeriodMs = 50;

    /// `object` is null or outlives the window's pairing with it.
    DialogGraph(ObjectGraph* object, QWidget* parent);
    ~DialogGraph() override;

    /// The size that a new window gets in the desktop.
    QSize sizeHint() const override;

    void setObject(Object* object) override;
    void receive(MessageContainer& batch) override;
    void updateDialog() override;

    const GraphEngine& engine() const { return *m_engine; }

protected:
    std::optional<Input> input() final;

protected slots:
    void slotSetup() override;

private slots:
    void slotAddParameter();
    void slotDeleteParameter();
    void slotSetupParameter();
    void slotParameterClicked(int row, int column);
    void slotParameterDoubleClicked(int row, int column);
    void slotSelectedRow();
    void slotActive(int row, bool checked);
    void slotOutputOn(bool on);
    void slotCommandPress(int id);
    void slotCommandRelease(int id);
    void slotManMode();
    void slotTimeout();
    void slotGraphSetup();
    void slotContextMenu(QPoint place);

private:
    static constexpr int noButton = 99;
    static constexpr int noRow = -1;
    enum class EditorPlace { WindowCorner, Anywhere };

    void build();
    QWidget* buildParameters();
    QWidget* buildPlot();
    /// The plot, or a notice where there is no OpenGL.
    QWidget* buildGraph(QWidget* panel);
    void connectControls();

    void showSettings();
    void applySettings();
    void applyChannels();
    void refreshTable();
    void syncButtons();
    void letGo() { m_held = noButton; }
    /// Takes modes and range over from the engine, which keys and commands change on their own.
    void keepModes();
    void setRange(double seconds);
    void setAutoMode(bool on);
    void setSplitMode(bool on);
    void resetAll();
    bool hasRow(int row) const;
    /// Opens the editor as soon as what calls this has returned: the window may go while the editor
    /// is open, and with it the control whose event this is.
    void openEditor(int row, EditorPlace place);
    void editParameter(int row, EditorPlace place);
    void takeEdited(int row, const ProfileParameter& edited);
    void showGraphSetup();
    void saveSnapshot();
    QPixmap snapshot();

    ObjectGraph* m_graph;
    GraphFeed m_feed;
    int m_held = noButton;
    int m_selectedRow = noRow; // the one that is highlighted

    std::unique_ptr<GraphEngine> m_ownEngine; // where there is no OpenGL
    GraphEngine* m_engine = nullptr;          // the plot, or that one

    GraphParameterTable* m_table = nullptr;
    GraphToolBar* m_tools = nullptr;
    WidgetGraph* m_plot = nullptr; // null where there is no OpenGL
    DialogGraphSetup* m_setupDialog = nullptr;
    QTimer* m_timer = nullptr;
};

} // namespace gui
