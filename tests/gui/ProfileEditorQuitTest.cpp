#include "gui/editor/DialogProfileEditor825_3.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/MessageBoxes.h"
#include "tests/gui/DesktopFixture.h"

#include <QAction>
#include <QLineEdit>
#include <QTest>

// The editor of LRU documents in the program.

namespace {

using gui::FileDialogs;
using gui::MessageBoxes;

constexpr int editorAction = 14;
constexpr int quitAction = 5;

class ProfileEditorQuit : public zul::test::DesktopTest
{
protected:
    gui::DialogProfileEditor825_3& editor() const
    {
        return *m_window->findChild<gui::DialogProfileEditor825_3*>();
    }
    void startChanged()
    {
        startAndTick();
        trigger(editorAction);
        QTest::keyClicks(editor().findChild<QLineEdit*>(QStringLiteral("headerName")),
                         QStringLiteral("x"));
        ASSERT_TRUE(editor().isChanged());
        m_asked = MessageBoxes::count();
    }
    int asked() const { return MessageBoxes::count() - m_asked; }

    int m_asked = 0;
};

TEST_F(ProfileEditorQuit, MenuOffersTheEditor)
{
    startAndTick();
    EXPECT_EQ(shown("&Extras").filter(QStringLiteral("Profile Editor ARINC-825")).size(), 1);
    EXPECT_TRUE(action(editorAction)->isEnabled());
    EXPECT_EQ(m_window->findChildren<gui::DialogProfileEditor825_3*>().size(), 1);
    trigger(editorAction);
    trigger(editorAction);
    EXPECT_EQ(m_window->findChildren<gui::DialogProfileEditor825_3*>().size(), 1);
    EXPECT_TRUE(editor().isVisible());
}

TEST_F(ProfileEditorQuit, CancelStopsTheQuitting)
{
    startChanged();
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    trigger(quitAction);
    EXPECT_EQ(asked(), 1);
    EXPECT_TRUE(MessageBoxes::last().text.startsWith(QStringLiteral("Current profile not saved")));
    EXPECT_EQ(m_ended, 0);
    EXPECT_FALSE(m_home.has(QStringLiteral("default.zul")));
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    EXPECT_FALSE(m_window->close());
    EXPECT_EQ(asked(), 2);
    EXPECT_EQ(m_ended, 0);
    EXPECT_TRUE(editor().isChanged());
}

TEST_F(ProfileEditorQuit, NoQuitsAndAsksOnce)
{
    startChanged();
    MessageBoxes::setNextAnswer(QMessageBox::No);
    trigger(quitAction);
    EXPECT_EQ(asked(), 1);
    EXPECT_EQ(m_ended, 1);
}

TEST_F(ProfileEditorQuit, YesSavesAndQuits)
{
    startChanged();
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    FileDialogs::setNextFileName(m_home.file(QStringLiteral("lru.xml")));
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(asked(), 1);
    EXPECT_EQ(m_ended, 1);
    EXPECT_TRUE(m_home.read(QStringLiteral("lru.xml")).contains("NoNamex"));
}

TEST_F(ProfileEditorQuit, YesWithoutAFileNameStopsTheQuitting)
{
    startChanged();
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    FileDialogs::setNextFileName(QString());
    trigger(quitAction);
    EXPECT_EQ(m_ended, 0);
    EXPECT_TRUE(editor().isChanged());
}

TEST_F(ProfileEditorQuit, ComesBeforeTheQuestionForTheProject)
{
    startChanged();
    project().save(m_home.file(QStringLiteral("mine.zul")));
    add(ObjectType::Receive);
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    trigger(quitAction);
    EXPECT_EQ(asked(), 1);
    EXPECT_TRUE(MessageBoxes::last().text.startsWith(QStringLiteral("Current profile")));
}

TEST_F(ProfileEditorQuit, UnchangedOrHiddenEditorIsNotAskedFor)
{
    startChanged();
    MessageBoxes::setNextAnswer(QMessageBox::No);
    editor().close();
    EXPECT_FALSE(editor().isVisible());
    EXPECT_EQ(asked(), 1);
    trigger(quitAction);
    EXPECT_EQ(asked(), 1);
    EXPECT_EQ(m_ended, 1);
}

} // namespace
