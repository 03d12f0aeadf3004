#pragma once

#include <QWidget>

#include <array>
#include <cstdint>

class QButtonGroup;
class QGridLayout;
class QToolButton;

namespace gui {

/// What the buttons beside the plot do. The numbers are their ids.
enum class GraphCommand : std::int32_t {
    ZoomIn = 0,
    ZoomOut = 1,
    ZoomOneToOne = 2,
    ZoomMarker = 3,
    ClearAll = 4,
    AutoMode = 5,
    SplitMode = 6,
    SingleMode = 7,
    Reset = 8,
    Setup = 9,
    Snapshot = 10
};

struct GraphButton
{
    GraphCommand command; ///< the row's index
    const char* icon;
    const char* toolTip;
    bool isCheckable;
};

// clang-format off
inline constexpr std::array<GraphButton, 11> graphButtons{{
    {GraphCommand::ZoomIn, "zoom-in", "Zoom In", false},
    {GraphCommand::ZoomOut, "zoom-out", "Zoom Out", false},
    {GraphCommand::ZoomOneToOne, "zoom-one", "Zoom 1:1", false},
    {GraphCommand::ZoomMarker, "zoom-marker", "Zoom Marker", false},
    {GraphCommand::ClearAll, "clear", "Clear All", false},
    {GraphCommand::AutoMode, "", "Automatic Mode", true},
    {GraphCommand::SplitMode, "graph-split", "Split Mode", true},
    {GraphCommand::SingleMode, "graph-single", "Single Graph Mode", true},
    {GraphCommand::Reset, "graph-reset", "Reset all to default\n\nAutomatic Mode\nSplit Mode\nRange 60s", false},
    {GraphCommand::Setup, "dialog-setup", "Setup", false},
    {GraphCommand::Snapshot, "snapshot", "Snapshot", false},
}};
// clang-format on

/// The column of buttons beside the plot; a second one takes what has no room in the first.
class GraphToolBar : public QWidget
{
    Q_OBJECT

public:
    explicit GraphToolBar(QWidget* parent = nullptr);

    QToolButton* button(GraphCommand command) const;
    /// Shows the modes, without a signal.
    void setModes(bool isAutomatic, bool isSplit) const;

signals:
    /// With the button's id, also when the pointer comes back to a button that is held.
    void signalPressed(int id);
    /// No button is held any more: it was released, or the pointer left it.
    void signalLetGo();
    /// A button was released below the pointer; comes behind `signalLetGo`.
    void signalReleased(int id);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange(int rows);

    QButtonGroup* m_group;
    QGridLayout* m_grid;
    int m_rows = 0;
};

} // namespace gui
