#include "gui/frame/DialogBase.h"

#include "core/SettingsStore.h"
#include "gui/frame/GuiRequests.h"
#include "gui/frame/MessageBoxes.h"
#include "gui/frame/MessageGuiAboutDialog.h"
#include "gui/frame/MessageGuiDialog.h"
#include "message/MessageContainer.h"
#include "project/ObjectReceive.h"
#include "tests/support/ProbeObjects.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using gui::DialogBase;
using gui::MessageBoxes;

class DialogBaseTest : public testing::Test
{
protected:
    void TearDown() override
    {
        SettingsStore::instance().reset();
        gui::GuiRequests::setHandler(nullptr);
        delete m_dialog;
    }
    static void setPolicy(int policy)
    {
        SettingsStore::instance().setInteger(QStringLiteral("OnCloseDialog"), policy);
    }

    ObjectReceive m_object;
    QPointer<DialogBase> m_dialog = new DialogBase(&m_object, nullptr);
    QSignalSpy m_kept{m_dialog.data(), &DialogBase::signalDeleteDialog};
    QSignalSpy m_removed{m_dialog.data(), &DialogBase::signalDeleteObject};
};

TEST_F(DialogBaseTest, PairsWithItsObject)
{
    EXPECT_EQ(m_object.dialog(), m_dialog);
    EXPECT_EQ(m_dialog->object(), &m_object);
    delete m_dialog;
    EXPECT_EQ(m_object.dialog(), nullptr);
}

TEST_F(DialogBaseTest, NameIsTheTitle)
{
    m_dialog->setName(QStringLiteral("Nose"));
    m_dialog->setTypeTitle(QStringLiteral("Receive Window"));
    EXPECT_EQ(m_dialog->windowTitle(), QStringLiteral("Nose"));
    EXPECT_EQ(m_dialog->typeTitle(), QStringLiteral("Receive Window"));
    EXPECT_EQ(m_dialog->name(), QStringLiteral("Nose"));
}

TEST_F(DialogBaseTest, ClosingKeepsTheObjectByDefaultAndDestroysTheWindow)
{
    m_dialog->show();
    EXPECT_TRUE(m_dialog->close());
    EXPECT_EQ(m_kept.count(), 1);
    EXPECT_EQ(m_kept.at(0).at(0).toInt(), m_object.id());
    EXPECT_EQ(m_removed.count(), 0);
    EXPECT_EQ(m_object.dialog(), nullptr); // at once, not only when Qt deletes the window
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_dialog.isNull(); }));
}

TEST_F(DialogBaseTest, PolicyOneRemovesTheObject)
{
    setPolicy(1);
    EXPECT_TRUE(m_dialog->close());
    EXPECT_EQ(m_removed.count(), 1);
    EXPECT_EQ(m_removed.at(0).at(0).toInt(), m_object.id());
    EXPECT_EQ(m_kept.count(), 0);
}

TEST_F(DialogBaseTest, PolicyTwoAsks)
{
    setPolicy(2);
    MessageBoxes::setNextAnswer(QMessageBox::Cancel);
    EXPECT_FALSE(m_dialog->close());
    EXPECT_EQ(m_object.dialog(), m_dialog);
    EXPECT_EQ(m_kept.count() + m_removed.count(), 0);
    EXPECT_EQ(MessageBoxes::last().icon, QMessageBox::Question);
    EXPECT_EQ(MessageBoxes::last().title, QStringLiteral("ZUL"));
    EXPECT_EQ(MessageBoxes::last().text, QStringLiteral("Remove object from project ? !\n"));
    EXPECT_EQ(MessageBoxes::last().buttons,
              (std::vector<QMessageBox::StandardButton>{QMessageBox::No, QMessageBox::Yes,
                                                        QMessageBox::Cancel}));
    MessageBoxes::setNextAnswer(QMessageBox::No);
    EXPECT_TRUE(m_dialog->close());
    EXPECT_EQ(m_kept.count(), 1);
}

TEST_F(DialogBaseTest, PolicyTwoWithYesRemoves)
{
    setPolicy(2);
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    EXPECT_TRUE(m_dialog->close());
    EXPECT_EQ(m_removed.count(), 1);
}

TEST_F(DialogBaseTest, UnknownPolicyClosesWithoutASignal)
{
    setPolicy(5);
    EXPECT_TRUE(m_dialog->close());
    EXPECT_EQ(m_kept.count() + m_removed.count(), 0);
}

TEST_F(DialogBaseTest, ForcedClosingNeverAsksAndKeepsTheObject)
{
    const int asked = MessageBoxes::count();
    for (const int policy : {1, 2, 5}) {
        setPolicy(policy);
        DialogBase dialog(&m_object, nullptr);
        dialog.setAttribute(Qt::WA_DeleteOnClose, false);
        const QSignalSpy kept(&dialog, &DialogBase::signalDeleteDialog);
        dialog.forceClose();
        EXPECT_TRUE(dialog.close());
        EXPECT_EQ(kept.count(), 1) << policy;
    }
    EXPECT_EQ(MessageBoxes::count(), asked);
}

TEST_F(DialogBaseTest, ClosedWindowDoesNotTakeItsSuccessorsPlace)
{
    m_dialog->close();
    DialogBase successor(&m_object, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_dialog.isNull(); }));
    EXPECT_EQ(m_object.dialog(), &successor);
}

TEST_F(DialogBaseTest, SendGoesToTheObjectsOutputsAndNowhereWithoutAnObject)
{
    zul::test::ProbeInterface interface;
    m_object.addOutput(&interface);
    MessageContainer batch;
    batch.setSrcDest("X");
    m_dialog->send(batch);
    EXPECT_EQ(interface.sent, std::vector<std::string>{"X"});
    m_dialog->setObject(nullptr);
    m_dialog->send(batch);
    EXPECT_EQ(interface.sent.size(), 1U);
    m_dialog->setObject(&m_object);
}

TEST_F(DialogBaseTest, RequestsReachTheMainWindow)
{
    std::vector<int> types;
    gui::GuiRequests::setHandler(
        [&](std::unique_ptr<Message> request) { types.push_back(request->type()); });
    DialogBase::guiRequest(std::make_unique<MessageGuiDialog>(8, 77));
    DialogBase::guiRequest(std::make_unique<MessageGuiAboutDialog>());
    EXPECT_EQ(types, (std::vector<int>{1, 2}));
    const MessageGuiDialog message(8, 77);
    EXPECT_EQ(message.objectType(), 8);
    EXPECT_EQ(message.parameter(), 77);
}

} // namespace
