#include "core/SettingsStore.h"
#include "gui/desktop/RecentFiles.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/MessageBoxes.h"
#include "tests/gui/DesktopFixture.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>
#include <QTreeWidget>

// What the main window does with whole projects.

namespace {

using gui::FileDialogs;
using gui::MessageBoxes;
using zul::test::DesktopTest;
using zul::test::texts;
using Buttons = std::vector<QMessageBox::StandardButton>;

constexpr const char* oneReceive =
    "<ZUL><ObjectReceive><Window name='Nose' width='321' "
    "height='210' xPos='12' yPos='34' open='1'/></ObjectReceive>"
    "<ObjectTrace><Window name='Shut' open='0'/></ObjectTrace></ZUL>";

class ProjectFlows : public DesktopTest
{
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        m_asked = MessageBoxes::count();
    }
    int asked() const { return MessageBoxes::count() - m_asked; }
    QString path(const char* name) const { return m_home.file(QLatin1String(name)); }
    /// A project that was named and then changed.
    void startEdited(const char* name = "mine.zul")
    {
        startAndTick();
        project().save(path(name));
        add(ObjectType::Receive);
        tick();
    }
    QString key(int index) const
    {
        return SettingsStore::instance().string(QString::asprintf("RecentFile%d", index),
                                                QStringLiteral("absent"));
    }
    void expectQuestion() const
    {
        const auto& question = MessageBoxes::last();
        EXPECT_EQ(question.icon, QMessageBox::Warning);
        EXPECT_EQ(question.title, QStringLiteral("ZUL Warning"));
        EXPECT_EQ(question.text,
                  QStringLiteral("Current Project not saved !\nDo you want to save it ?"));
        EXPECT_EQ(question.buttons,
                  (Buttons{QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}));
    }
    QStringList windowTitles() const
    {
        QStringList titles;
        for (const QMdiSubWindow* window : m_window->mdiArea().subWindowList()) {
            titles.append(window->windowTitle());
        }
        return titles;
    }

private:
    int m_asked = 0;
};

TEST_F(ProjectFlows, FirstTickOpensTheWindowsThatAreMarkedOpen)
{
    m_home.write(QStringLiteral("default.zul"), oneReceive);
    make();
    EXPECT_TRUE(windowTitles().isEmpty());
    tick();
    EXPECT_EQ(windowTitles(), texts({"Nose"}));
    const QMdiSubWindow* window = m_window->mdiArea().subWindowList().constFirst();
    EXPECT_EQ(QRect(window->pos(), window->size()), QRect(12, 34, 321, 210));
    m_window->mdiArea().closeAllSubWindows();
    tick();
    EXPECT_TRUE(windowTitles().isEmpty()); // only the first one does
}

TEST_F(ProjectFlows, QuitBeforeTheFirstTickKeepsTheWindowsMarkedOpen)
{
    m_home.write(QStringLiteral("default.zul"), oneReceive);
    start();
    trigger(5);
    EXPECT_EQ(m_home.read(QStringLiteral("default.zul")).count("open=\"1\""), 1);
    restart();
    tick();
    EXPECT_EQ(windowTitles(), texts({"Nose"}));
}

TEST_F(ProjectFlows, NewOfAnUneditedProjectAsksNothing)
{
    m_home.write(QStringLiteral("default.zul"), oneReceive);
    startAndTick();
    trigger(0);
    EXPECT_EQ(asked(), 0);
    EXPECT_TRUE(project().objects().empty());
    EXPECT_TRUE(windowTitles().isEmpty());
    EXPECT_EQ(project().fileName(), QString());
    EXPECT_EQ(title(), QStringLiteral("ZUL     "));
    EXPECT_EQ(objectTree()->topLevelItem(0)->childCount(), 0);
}

TEST_F(ProjectFlows, NewWithYesSavesFirst)
{
    startEdited();
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    trigger(0);
    EXPECT_EQ(asked(), 1);
    expectQuestion();
    EXPECT_TRUE(m_home.read(QStringLiteral("mine.zul")).contains("ObjectReceive"));
    EXPECT_TRUE(project().objects().empty());
}

TEST_F(ProjectFlows, NewWithNoDiscards)
{
    startEdited();
    MessageBoxes::setNextAnswer(QMessageBox::No);
    trigger(0);
    EXPECT_FALSE(m_home.read(QStringLiteral("mine.zul")).contains("ObjectReceive"));
    EXPECT_TRUE(project().objects().empty());
    EXPECT_FALSE(project().isEdited());
}

TEST_F(ProjectFlows, NewWithCancelLeavesEverythingAndTheHeartbeatRuns)
{
    startEdited();
    project().renameObject(project().objects().begin()->first, QStringLiteral("Kept"));
    const QStringList before = windowTitles();
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    trigger(0);
    EXPECT_EQ(project().objects().size(), 1U);
    EXPECT_EQ(windowTitles(), before);
    EXPECT_EQ(project().fileName(), path("mine.zul"));
    project().save(QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return title() == QStringLiteral("ZUL     mine.zul"); }));
}

TEST_F(ProjectFlows, HeartbeatRunsAfterNew)
{
    startAndTick();
    trigger(0);
    project().markEdited();
    EXPECT_TRUE(QTest::qWaitFor([&] { return title() == QStringLiteral("ZUL      (edited)"); }));
}

TEST_F(ProjectFlows, OpenLoadsTheChosenFile)
{
    m_home.write(QStringLiteral("other.zul"), oneReceive);
    startAndTick();
    FileDialogs::setNextFileName(path("other.zul"));
    trigger(1);
    EXPECT_EQ(FileDialogs::lastTitle(), QStringLiteral("Open Project"));
    EXPECT_EQ(FileDialogs::lastFilter(), QStringLiteral("ZORB File (*.zul);;All Files (*.*)"));
    EXPECT_EQ(title(), QStringLiteral("ZUL     other.zul"));
    EXPECT_EQ(windowTitles(), texts({"Nose"}));
    EXPECT_EQ(key(0), path("other.zul"));
    EXPECT_EQ(objectTree()->topLevelItem(0)->childCount(), 1);
    EXPECT_EQ(asked(), 0);
    project().markEdited();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return title() == QStringLiteral("ZUL     other.zul (edited)"); }));
}

TEST_F(ProjectFlows, OpenWithCancelledQuestionShowsNoChooser)
{
    startEdited();
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    FileDialogs::setNextFileName(path("other.zul"));
    trigger(1);
    EXPECT_EQ(title(), QStringLiteral("ZUL     mine.zul (edited)"));
    FileDialogs::setNextFileName(QString());
    MessageBoxes::setNextAnswer(QMessageBox::No);
    trigger(1); // takes the answers that are left
}

TEST_F(ProjectFlows, OpenCancelledReopensTheWindowsAsTheyWereMarkedAtTheLoad)
{
    m_home.write(QStringLiteral("default.zul"), oneReceive);
    startAndTick();
    const Object& trace = *project().objects().rbegin()->second;
    m_window->mdiArea().closeAllSubWindows();
    m_window->slotObjectSelect(trace.id());
    EXPECT_EQ(windowTitles(), texts({"Shut"}));
    FileDialogs::setNextFileName(QString());
    trigger(1);
    EXPECT_EQ(windowTitles(), texts({"Nose"}));
    EXPECT_EQ(title(), QStringLiteral("ZUL     default.zul"));
    EXPECT_EQ(key(0), QStringLiteral("absent"));
}

TEST_F(ProjectFlows, OpenOfABrokenFileGivesAnEmptyProjectOfThatName)
{
    m_home.write(QStringLiteral("default.zul"), oneReceive);
    m_home.write(QStringLiteral("broken.zul"), "<ZUL><ObjectReceive>");
    startAndTick();
    FileDialogs::setNextFileName(path("broken.zul"));
    trigger(1);
    EXPECT_EQ(title(), QStringLiteral("ZUL     broken.zul"));
    EXPECT_TRUE(project().objects().empty());
    EXPECT_TRUE(windowTitles().isEmpty());
    EXPECT_EQ(m_home.read(QStringLiteral("broken.zul")), QByteArray("<ZUL><ObjectReceive>"));
    FileDialogs::setNextFileName(path("missing.zul"));
    trigger(1);
    EXPECT_EQ(title(), QStringLiteral("ZUL     missing.zul"));
    EXPECT_EQ(key(0), path("missing.zul"));
    EXPECT_EQ(key(1), path("broken.zul"));
    EXPECT_EQ(asked(), 0);
}

TEST_F(ProjectFlows, SaveOfANamedProjectAsksNothing)
{
    startEdited();
    trigger(3);
    EXPECT_EQ(asked(), 0);
    EXPECT_EQ(title(), QStringLiteral("ZUL     mine.zul"));
    EXPECT_TRUE(m_home.read(QStringLiteral("mine.zul")).contains("ObjectReceive"));
    EXPECT_EQ(key(0), QStringLiteral("absent"));
}

TEST_F(ProjectFlows, SaveWithoutANameIsSaveAs)
{
    startAndTick();
    trigger(0);
    add(ObjectType::Receive);
    FileDialogs::setNextFileName(path("named"));
    trigger(3);
    EXPECT_EQ(FileDialogs::lastTitle(), QStringLiteral("Save Project"));
    EXPECT_EQ(FileDialogs::lastFilter(), QStringLiteral("ZORB File (*.zul);;All Files (*.*)"));
    EXPECT_EQ(title(), QStringLiteral("ZUL     named.zul"));
    EXPECT_TRUE(m_home.has(QStringLiteral("named.zul")));
    EXPECT_FALSE(m_home.has(QStringLiteral("named")));
    EXPECT_EQ(key(0), path("named.zul"));
}

TEST_F(ProjectFlows, SaveAsKeepsANameWithAPoint)
{
    startAndTick();
    for (const char* name : {"a.xml", "b.", ".c"}) {
        FileDialogs::setNextFileName(path(name));
        trigger(4);
        EXPECT_TRUE(m_home.has(QLatin1String(name))) << name;
        EXPECT_EQ(project().fileName(), path(name));
        EXPECT_EQ(key(0), path(name));
    }
}

TEST_F(ProjectFlows, SaveAsLooksForThePointInTheLastSectionOnly)
{
    startAndTick();
    QDir(m_home.path()).mkdir(QStringLiteral("dir.d"));
    FileDialogs::setNextFileName(path("dir.d/name"));
    trigger(4);
    EXPECT_EQ(project().fileName(), path("dir.d/name.zul"));
    EXPECT_TRUE(m_home.has(QStringLiteral("dir.d/name.zul")));
}

TEST_F(ProjectFlows, SaveAsCancelledChangesNothing)
{
    startEdited();
    FileDialogs::setNextFileName(QString());
    trigger(4);
    EXPECT_EQ(title(), QStringLiteral("ZUL     mine.zul (edited)"));
    EXPECT_TRUE(project().isEdited());
    EXPECT_EQ(key(0), QStringLiteral("absent"));
}

TEST_F(ProjectFlows, NewWithYesGoesOnAlsoWhenTheChooserIsCancelled)
{
    startAndTick();
    trigger(0);
    add(ObjectType::Receive);
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    FileDialogs::setNextFileName(QString());
    trigger(0);
    EXPECT_TRUE(project().objects().empty());
    EXPECT_FALSE(project().isEdited());
}

TEST_F(ProjectFlows, SeventhRecentFileDropsTheOldest)
{
    startAndTick();
    for (int i = 0; i < 7; ++i) {
        FileDialogs::setNextFileName(m_home.file(QString::asprintf("p%d.zul", i)));
        trigger(4);
    }
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(key(i), m_home.file(QString::asprintf("p%d.zul", 6 - i)));
    }
    EXPECT_EQ(key(6), QStringLiteral("absent"));
    EXPECT_EQ(shown("&File"),
              texts({"&New Project", "&Open Project", "-", "&Save Project", "&Save Project As", "-",
                     "p6.zul", "p5.zul", "p4.zul", "p3.zul", "p2.zul", "p1.zul", "-", "&Quit"}));
    const QAction* first = entry("&File", QStringLiteral("p6.zul"));
    EXPECT_EQ(first->data().toString(), path("p6.zul"));
    EXPECT_EQ(first->statusTip(), QStringLiteral("Load ") + path("p6.zul"));
}

TEST_F(ProjectFlows, RecentListIsEmptyTextInTheKeysThatAreLeft)
{
    startAndTick();
    FileDialogs::setNextFileName(path("only.zul"));
    trigger(4);
    EXPECT_EQ(key(0), path("only.zul"));
    for (int i = 1; i < 6; ++i) {
        EXPECT_EQ(key(i), QString()) << i;
    }
}

TEST_F(ProjectFlows, RecentListComesFromTheSettingsWithoutTheEmptyOnes)
{
    SettingsStore::instance().setString(QStringLiteral("RecentFile1"),
                                        QStringLiteral("/x/b&c.zul"));
    SettingsStore::instance().setString(QStringLiteral("RecentFile2"), QString());
    SettingsStore::instance().setString(QStringLiteral("RecentFile5"), QStringLiteral("/x/f.zul"));
    SettingsStore::instance().setString(QStringLiteral("RecentFile6"), QStringLiteral("/x/g.zul"));
    start();
    EXPECT_EQ(shown("&File").mid(5), texts({"-", "b&&c.zul", "f.zul", "-", "&Quit"}));
}

TEST_F(ProjectFlows, RecentFileIsLoadedWithoutAQuestionAndComesFirst)
{
    m_home.write(QStringLiteral("old.zul"), oneReceive);
    SettingsStore::instance().setString(QStringLiteral("RecentFile0"), path("first.zul"));
    SettingsStore::instance().setString(QStringLiteral("RecentFile1"), path("old.zul"));
    startEdited();
    const QPointer<QMdiSubWindow> window = m_window->mdiArea().subWindowList().constFirst();
    shown("&File");
    entry("&File", QStringLiteral("old.zul"))->trigger();
    EXPECT_EQ(asked(), 0);
    EXPECT_TRUE(window.isNull()); // at once, not at its closing
    EXPECT_EQ(title(), QStringLiteral("ZUL     old.zul"));
    EXPECT_EQ(windowTitles(), texts({"Nose"}));
    EXPECT_EQ(key(0), path("old.zul"));
    EXPECT_EQ(key(1), path("first.zul"));
    EXPECT_FALSE(m_home.read(QStringLiteral("mine.zul")).contains("ObjectReceive"));
    project().markEdited();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return title() == QStringLiteral("ZUL     old.zul (edited)"); }));
}

TEST_F(ProjectFlows, RecentFileThatIsFirstLeavesTheOrder)
{
    gui::RecentFiles recent;
    recent.add(QStringLiteral("b"));
    recent.add(QStringLiteral("a"));
    recent.add(QStringLiteral("a"));
    EXPECT_EQ(recent.paths(), texts({"a", "b"}));
    EXPECT_EQ(key(0), QStringLiteral("a"));
    EXPECT_EQ(key(1), QStringLiteral("b"));
    EXPECT_EQ(key(2), QString());
}

TEST_F(ProjectFlows, QuitOfTheDefaultProjectAsksNothingAndSavesAll)
{
    startAndTick();
    add(ObjectType::Receive);
    SettingsStore::instance().setInteger(QStringLiteral("OnCloseDialog"), 1);
    trigger(5);
    EXPECT_EQ(asked(), 0);
    EXPECT_EQ(m_ended, 1);
    EXPECT_TRUE(m_home.read(QStringLiteral("default.zul")).contains("ObjectReceive"));
    EXPECT_TRUE(m_home.read(QStringLiteral("zul.ini")).contains("OnCloseDialog"));
}

TEST_F(ProjectFlows, QuitAsksUnlessTheLastSectionOfThePathIsExactlyTheDefaultName)
{
    startAndTick();
    for (const char* name : {"mydefault.zul", "default.zul.zul", "Default.zul", "default"}) {
        project().save(path(name));
        project().markEdited();
        const int before = asked();
        MessageBoxes::setNextAnswer(QMessageBox::Cancel);
        trigger(5);
        EXPECT_EQ(asked(), before + 1) << name;
        EXPECT_EQ(m_ended, 0) << name;
    }
    QDir(m_home.path()).mkdir(QStringLiteral("elsewhere"));
    project().save(path("elsewhere/default.zul"));
    const QByteArray saved = m_home.read(QStringLiteral("elsewhere/default.zul"));
    add(ObjectType::Receive);
    const int before = asked();
    MessageBoxes::setNextAnswer(QMessageBox::No);
    trigger(5);
    EXPECT_EQ(asked(), before);
    if (asked() == before) { // the answer is left
        MessageBoxes::ask(nullptr, QMessageBox::NoIcon, QString(), QString(), {});
    }
    EXPECT_EQ(m_ended, 1);
    EXPECT_EQ(m_home.read(QStringLiteral("elsewhere/default.zul")), saved);
    EXPECT_TRUE(m_home.read(QStringLiteral("default.zul")).contains("ObjectReceive"));
}

TEST_F(ProjectFlows, QuitOfAnotherEditedProjectAsksOnce)
{
    startEdited();
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    trigger(5);
    EXPECT_EQ(asked(), 1);
    expectQuestion();
    EXPECT_EQ(m_ended, 1);
    EXPECT_TRUE(m_home.read(QStringLiteral("mine.zul")).contains("ObjectReceive"));
    EXPECT_TRUE(m_home.read(QStringLiteral("default.zul")).contains("ObjectReceive"));
    EXPECT_EQ(project().fileName(), path("default.zul"));
}

TEST_F(ProjectFlows, QuitWithNoStillRewritesTheDefaultFile)
{
    startEdited();
    MessageBoxes::setNextAnswer(QMessageBox::No);
    trigger(5);
    EXPECT_EQ(m_ended, 1);
    EXPECT_FALSE(m_home.read(QStringLiteral("mine.zul")).contains("ObjectReceive"));
    EXPECT_TRUE(m_home.read(QStringLiteral("default.zul")).contains("ObjectReceive"));
}

TEST_F(ProjectFlows, QuitWithCancelKeepsTheWindowAndWritesNothing)
{
    startEdited();
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    trigger(5);
    EXPECT_EQ(m_ended, 0);
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_FALSE(m_home.has(QStringLiteral("default.zul")));
    EXPECT_FALSE(m_home.has(QStringLiteral("zul.ini")));
    EXPECT_EQ(title(), QStringLiteral("ZUL     mine.zul (edited)"));
    project().save(QString());
    EXPECT_TRUE(QTest::qWaitFor([&] { return title() == QStringLiteral("ZUL     mine.zul"); }));
}

TEST_F(ProjectFlows, QuitOfAnUneditedOtherProjectAsksNothing)
{
    startAndTick();
    project().save(path("mine.zul"));
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(asked(), 0);
    EXPECT_EQ(m_ended, 1);
    EXPECT_TRUE(m_home.has(QStringLiteral("default.zul")));
}

TEST_F(ProjectFlows, ClosingTheWindowWithCancelIsRefused)
{
    startEdited();
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    EXPECT_FALSE(m_window->close());
    EXPECT_EQ(m_ended, 0);
    EXPECT_TRUE(m_window->isVisible());
}

TEST_F(ProjectFlows, SecondCloseDoesNothingMore)
{
    startAndTick();
    EXPECT_TRUE(m_window->close());
    m_home.write(QStringLiteral("default.zul"), "untouched");
    m_window->show();
    project().markEdited();
    m_window->close();
    EXPECT_EQ(m_ended, 1);
    EXPECT_EQ(asked(), 0);
    EXPECT_EQ(m_home.read(QStringLiteral("default.zul")), QByteArray("untouched"));
}

TEST_F(ProjectFlows, ControlQEndsTheProcess)
{
    startAndTick();
    pressKey(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(m_ended, 1);
}

TEST_F(ProjectFlows, NextStartResumesTheLastState)
{
    startEdited();
    MessageBoxes::setNextAnswer(QMessageBox::No);
    trigger(5);
    const QByteArray left = m_home.read(QStringLiteral("default.zul"));
    restart();
    tick();
    EXPECT_EQ(project().objects().size(), 1U);
    EXPECT_EQ(windowTitles().size(), 1);
    trigger(5);
    EXPECT_EQ(m_home.read(QStringLiteral("default.zul")), left);
}

} // namespace
