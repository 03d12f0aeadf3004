#include "gui/controls/QwtComboBox.h"
#include "gui/traffic/DialogTrace.h"
#include "project/ObjectTrace.h"
#include "tests/gui/ReceiveFixture.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QWheelEvent>

// The wheel over the selections beside the views of the Receive and the Trace window, which it is
// to scroll and nothing else.

namespace {

using gui::QwtComboBox;
using zul::test::batchOf;

/// Turns the wheel over the control; returns whether the control took it.
bool turnOver(QWidget& control)
{
    QWheelEvent wheel(QPointF(5, 5), control.mapToGlobal(QPoint(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&control, &wheel);
    return wheel.isAccepted();
}

class ReceiveWheel : public zul::test::ReceiveTest
{
};

TEST_F(ReceiveWheel, KeepsTheModeAndTheRows)
{
    auto* mode = m_dialog->findChild<QwtComboBox*>(QStringLiteral("displayMode"));
    feed(batchOf(5, 8));
    m_dialog->show();
    QApplication::setActiveWindow(m_dialog);
    EXPECT_FALSE(turnOver(*mode));
    EXPECT_EQ(m_object->settings().displayMode, 0);
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
    EXPECT_FALSE(m_project.isEdited());
    EXPECT_EQ(mode->focusPolicy(), Qt::StrongFocus) << "nor does it take the focus";
    mode->setFocus(); // where it is meant, it chooses
    EXPECT_TRUE(turnOver(*mode));
    EXPECT_EQ(m_object->settings().displayMode, 3);
}

TEST(TraceWheel, KeepsModeAndRecordFormat)
{
    const zul::test::TestHome home;
    Project project({ObjectTrace::typeInfo()}, home.file(QStringLiteral("default.zul")));
    project.load(home.file(QStringLiteral("none.zul")));
    auto* object = dynamic_cast<ObjectTrace*>(project.createObject(ObjectType::Trace));
    gui::DialogTrace dialog(object, nullptr);
    project.save(QString());
    dialog.show();
    for (const char* name : {"displayMode", "recordMode"}) {
        auto* box = dialog.findChild<QwtComboBox*>(QLatin1String(name));
        EXPECT_FALSE(turnOver(*box)) << name;
        EXPECT_EQ(box->currentIndex(), 0) << name;
        EXPECT_EQ(box->focusPolicy(), Qt::StrongFocus) << name;
    }
    EXPECT_EQ(object->settings().displayMode, 0);
    EXPECT_EQ(object->settings().traceFormat, 0);
    EXPECT_FALSE(project.isEdited());
}

} // namespace
