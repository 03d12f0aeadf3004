#pragma once

#include <QObject>

#include <map>

class QAction;
class QMainWindow;

namespace gui {

/// What the main window's actions do. The number stands in each action's data.
enum class MainAction : int {
    New = 0,
    Open = 1,
    Close = 2,
    Save = 3,
    SaveAs = 4,
    Quit = 5,
    Connect = 6,
    About = 7,
    Help = 8,
    Tile = 9,
    Cascade = 10,
    CloseWindow = 11,
    CloseAllWindows = 12,
    Preferences = 13,
    ProfileEditor = 14
};

/// The main window's actions, made from one table of texts, shortcuts and icons.
class MainActions
{
public:
    /// Makes all actions as children of `window`. Their shortcuts work from the start, whether or
    /// not a menu shows them.
    explicit MainActions(QMainWindow& window);

    QAction* operator[](MainAction id) const;
    const std::map<MainAction, QAction*>& all() const { return m_actions; }

private:
    std::map<MainAction, QAction*> m_actions;
};

} // namespace gui
