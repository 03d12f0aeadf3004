#pragma once

#include "gui/controls/QwtCheckBox.h"
#include "gui/measure/DialogGraph.h"
#include "gui/measure/GraphParameterTable.h"
#include "gui/measure/GraphToolBar.h"
#include "measure/GraphEngine.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectGraph.h"
#include "project/Project.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

namespace zul::test {

/// A batch of frames with these identifiers, whose first byte is `first`.
inline MessageContainer graphBatch(const std::vector<std::uint32_t>& ids, std::uint8_t first = 7,
                                   const char* source = "Nose")
{
    MessageContainer batch;
    batch.setSrcDest(source);
    for (const std::uint32_t id : ids) {
        auto* frame = new MessageCan;
        frame->setId(id);
        frame->setByteCount(8);
        frame->msg()[0] = first;
        batch.addMessage(SmartPtr<Message>(frame));
    }
    return batch;
}

/// An oscilloscope for an object of a saved project, made at 1000 s, without parameters.
class GraphWindowTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object = dynamic_cast<ObjectGraph*>(m_project.createObject(ObjectType::Graph));
        m_object->parameters().clear();
        m_dialog = new gui::DialogGraph(m_object, nullptr);
        m_project.save(QString());
    }
    void TearDown() override { delete m_dialog; }

    ObjectGraph::Graph& graph() const { return m_object->graph(); }
    ProfileParameter& parameter(std::size_t row = 0) const
    {
        return m_object->parameters()[row].parameter;
    }
    const GraphState& state() const { return m_dialog->engine().state(); }
    const GraphChannel& channel(std::size_t index = 0) const { return state().channels[index]; }
    gui::GraphParameterTable& table() const
    {
        return *m_dialog->findChild<gui::GraphParameterTable*>();
    }
    gui::QwtCheckBox& activeBox(int row) const
    {
        return *qobject_cast<gui::QwtCheckBox*>(
            table().cellWidget(row, gui::GraphParameterTable::ActiveColumn));
    }
    QToolButton& command(gui::GraphCommand command) const
    {
        return *m_dialog->findChild<gui::GraphToolBar*>()->button(command);
    }
    QToolButton& tool(const char* toolTip) const
    {
        for (auto* button : m_dialog->findChildren<QToolButton*>()) {
            if (button->toolTip() == QLatin1String(toolTip)) {
                return *button;
            }
        }
        ADD_FAILURE() << "no button " << toolTip;
        return *m_dialog->findChild<QToolButton*>();
    }
    void click(gui::GraphCommand wanted) const
    {
        QTest::mouseClick(&command(wanted), Qt::LeftButton);
    }
    void click(const char* toolTip) const { QTest::mouseClick(&tool(toolTip), Qt::LeftButton); }
    void clickRow(int row) const
    {
        const auto* item = table().item(row, gui::GraphParameterTable::NameColumn);
        QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::NoModifier,
                          table().visualItemRect(item).center());
    }
    void feed(MessageContainer batch) const { m_dialog->receive(batch); }
    /// Runs `action` as soon as a modal dialog is open.
    template <typename Action>
    static void whenModal(Action action, int turns = 1000)
    {
        QTimer::singleShot(0, qApp, [action, turns] {
            if (QApplication::activeModalWidget() != nullptr) {
                action();
            } else if (turns > 0) {
                whenModal(action, turns - 1); // what opens it is still on its way
            }
        });
    }
    /// Runs `answer` with the modal dialog that the next action opens, and closes it.
    template <typename Dialog, typename Answer>
    void onDialog(Answer answer)
    {
        whenModal([answer] {
            auto* opened = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(opened, nullptr);
            answer(*opened);
            opened->accept();
        });
    }

    TestHome m_home;
    SettableClock m_clock{1000.0};
    Project m_project{{ObjectGraph::typeInfo()}, m_home.file(QStringLiteral("default.zul"))};
    ObjectGraph* m_object = nullptr;
    gui::DialogGraph* m_dialog = nullptr;
};

} // namespace zul::test
