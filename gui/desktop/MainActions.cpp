#include "gui/desktop/MainActions.h"

#include "gui/controls/Look.h"

#include <QAction>
#include <QIcon>
#include <QKeySequence>
#include <QMainWindow>

#include <array>

namespace gui {

namespace {

struct ActionTexts
{
    MainAction id;
    const char* text;
    const char* shortcut;
    const char* statusTip;
    const char* icon;
};

// Close and Connect stand on no menu: connecting is done in the project panel.
constexpr std::array<ActionTexts, 15> actionTexts{{
    {MainAction::New, "&New Project", "Ctrl+N", "Create new Project", "new"},
    {MainAction::Open, "&Open Project", "Ctrl+O", "Open Project", "open"},
    {MainAction::Close, "&Close Project", "", "Close Project", ""},
    {MainAction::Save, "&Save Project", "Ctrl+S", "Save Project File", "save"},
    {MainAction::SaveAs, "&Save Project As", "", "Save Project File As", "save-as"},
    {MainAction::Quit, "&Quit", "Ctrl+Q", "Quit Application", "quit"},
    {MainAction::Connect, "&Connect", "", "Connect CAN Interface", ""},
    {MainAction::About, "About", "", "Show License Information", "about"},
    {MainAction::Help, "Help", "F1", "Help Window", "help"},
    {MainAction::Tile, "&Tile", "", "Tile the windows", "tile"},
    {MainAction::Cascade, "&Cascade", "", "Cascade the windows", "cascade"},
    {MainAction::CloseWindow, "Cl&ose", "Ctrl+F4", "Close the active window", "close"},
    {MainAction::CloseAllWindows, "Close &All", "", "Close all the windows", "close-all"},
    {MainAction::Preferences, "Preferences", "", "Open Preferences Dialog", "preferences"},
    {MainAction::ProfileEditor, "Profile Editor ARINC-825", "", "Open Profile Editor",
     "profile-editor"},
}};

} // namespace

MainActions::MainActions(QMainWindow& window)
{
    for (const ActionTexts& texts : actionTexts) {
        auto* action = new QAction(QLatin1String(texts.text), &window);
        action->setData(static_cast<int>(texts.id));
        action->setShortcut(QKeySequence(QLatin1String(texts.shortcut)));
        action->setStatusTip(QLatin1String(texts.statusTip));
        if (*texts.icon != '\0') {
            action->setIcon(icon(texts.icon));
        }
        window.addAction(action);
        m_actions[texts.id] = action;
    }
    m_actions[MainAction::Save]->setIconText(QStringLiteral("Save"));
    m_actions[MainAction::SaveAs]->setIconText(QStringLiteral("Save As"));
}

QAction* MainActions::operator[](MainAction id) const
{
    return m_actions.at(id);
}

} // namespace gui
