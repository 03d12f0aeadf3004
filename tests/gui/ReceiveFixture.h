#pragma once

#include "gui/frame/GuiRequests.h"
#include "gui/traffic/DialogReceive.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectReceive.h"
#include "project/Project.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QPointer>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace zul::test {

/// A batch of one 11-bit frame from the interface "Nose", whose first byte is 0xAB.
inline MessageContainer batchOf(std::uint32_t id, std::uint32_t byteCount,
                                MessageCan::EFrameType type = MessageCan::EFrameType::Data,
                                double time = 1.5)
{
    auto* frame = new MessageCan;
    frame->setId(id);
    frame->setByteCount(byteCount);
    frame->setFrameType(type);
    frame->setTimeStamp(time);
    frame->msg()[0] = 0xAB;
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(frame));
    batch.setSrcDest("Nose");
    return batch;
}

/// A Receive window, hidden, for an object of a saved project; the time is 100 s.
class ReceiveTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object = dynamic_cast<ObjectReceive*>(m_project.createObject(ObjectType::Receive));
        m_dialog = new gui::DialogReceive(m_object, nullptr);
        m_tree = m_dialog->findChild<QTreeWidget*>(QStringLiteral("receiveTree"));
        m_project.save(QString());
    }
    void TearDown() override
    {
        gui::GuiRequests::setHandler(nullptr);
        delete m_dialog;
    }
    void feed(MessageContainer batch) { m_dialog->receive(batch); }
    /// Waits until the first row shows the text.
    bool painted(int column, const char* text)
    {
        return QTest::qWaitFor([&] {
            return m_tree->topLevelItemCount() > 0 &&
                   m_tree->topLevelItem(0)->text(column) == QLatin1String(text);
        });
    }
    void click(const char* name)
    {
        QTest::mouseClick(m_dialog->findChild<QWidget*>(QLatin1String(name)), Qt::LeftButton);
    }

    TestHome m_home;
    SettableClock m_clock{100.0};
    Project m_project{{ObjectReceive::typeInfo()}, m_home.file(QStringLiteral("default.zul"))};
    ObjectReceive* m_object = nullptr;
    QPointer<gui::DialogReceive> m_dialog;
    QTreeWidget* m_tree = nullptr;
};

} // namespace zul::test
