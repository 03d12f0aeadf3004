#pragma once

#include "gui/desktop/DialogMain.h"
#include "gui/frame/DialogBase.h"
#include "tests/support/TestHome.h"

#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

class QAction;
class QMdiSubWindow;
class QMenu;
class QTableWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace zul::test {

/// A tool window that notes the messages it gets from the main window.
class ProbeDialog : public gui::DialogBase
{
public:
    using DialogBase::DialogBase;

    void guiMessage(Message* message) override { messageTypes.push_back(message->type()); }

    std::vector<int> messageTypes;
};

/// The main window over a home directory of its own. Receive, Trace and Dial objects and interfaces
/// have a `ProbeDialog` as their window; the other types have none.
class DesktopTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Makes the main window, and leaves no time for its first tick.
    void make();
    /// Makes and shows the main window, as the start of the program does.
    void start();
    /// Ends it, and starts again over the same home with settings read from its file.
    void restart();
    /// One turn of the heartbeat.
    void tick() { m_window->slotTimeout(); }
    /// Starts, and opens the windows of the project.
    void startAndTick();

    Project& project() { return m_window->project(); }
    QAction* action(int id) const;
    /// What choosing the action in a menu does.
    void trigger(int id) const;
    QMenu* menu(const char* title) const;
    /// The texts of the menu's entries as it shows them now; "-" for a separator.
    QStringList shown(const char* title) const;
    QAction* entry(const char* menuTitle, const QString& text) const;

    Object* add(ObjectType type);
    QMdiSubWindow* subWindow(const Object& object) const;
    ProbeDialog* dialog(const Object& object) const;
    QString title() const { return m_window->windowTitle(); }
    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const;

    QTableWidget* interfaceTable() const;
    QTreeWidget* objectTree() const;
    QTreeWidgetItem* treeItem(const Object& object) const;

    TestHome m_home;
    std::unique_ptr<gui::DialogMain> m_window;
    int m_ended = 0; ///< how often the process would have ended
};

/// Runs `inspect` as soon as a modal window of the type is up. Fails if there is none in time.
void whenModal(const char* className, const std::function<void(QWidget& window)>& inspect);

/// Texts in a row, for short expectations.
QStringList texts(std::initializer_list<const char*> list);

} // namespace zul::test
