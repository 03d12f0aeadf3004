#include "gui/desktop/DialogProject.h"
#include "tests/gui/DesktopFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMessageBox>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>

// The project panel's icons and timer, and its message boxes as they stand on the screen.

namespace {

using zul::test::DesktopTest;
using zul::test::texts;
using zul::test::whenModal;

QImage picture(const QTreeWidgetItem& item)
{
    return item.icon(0).pixmap(16).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The box's buttons from left to right, by their places.
std::vector<QAbstractButton*> buttonsOf(const QWidget& box)
{
    const auto found = box.findChildren<QAbstractButton*>();
    std::vector<QAbstractButton*> buttons(found.begin(), found.end());
    const auto left = [&box](const QAbstractButton* button) {
        return button->mapTo(&box, QPoint(0, 0)).x();
    };
    std::sort(buttons.begin(), buttons.end(),
              [&](const auto* one, const auto* other) { return left(one) < left(other); });
    return buttons;
}

QStringList textsOf(const std::vector<QAbstractButton*>& buttons)
{
    QStringList list;
    for (const QAbstractButton* button : buttons) {
        list.append(button->text());
    }
    return list;
}

class ProjectPanelLook : public DesktopTest
{
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        startAndTick();
    }
    gui::DialogProject* panel() const { return m_window->findChild<gui::DialogProject*>(); }
};

TEST_F(ProjectPanelLook, ObjectsShowTheirTypesIconAndGroupsAnotherThatTheyShare)
{
    const Object* receive = add(ObjectType::Receive);
    const Object* trace = add(ObjectType::Trace);
    QImage blue(16, 16, QImage::Format_ARGB32);
    blue.fill(Qt::blue); // the types' icon here
    EXPECT_EQ(picture(*treeItem(*receive)), blue);
    EXPECT_EQ(picture(*treeItem(*trace)), blue);
    const QImage ofGroup = picture(*objectTree()->topLevelItem(0));
    EXPECT_NE(ofGroup, blue);
    for (int i = 1; i < objectTree()->topLevelItemCount(); ++i) {
        EXPECT_EQ(picture(*objectTree()->topLevelItem(i)), ofGroup) << i;
    }
}

TEST_F(ProjectPanelLook, LoadTimerRunsEvery100Milliseconds)
{
    const auto timers = panel()->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_EQ(timers.size(), 1);
    EXPECT_EQ(timers[0]->interval(), 100);
    EXPECT_FALSE(timers[0]->isSingleShot());
    EXPECT_TRUE(timers[0]->isActive());
}

TEST_F(ProjectPanelLook, FailureToOpenShowsItsTextAndOneOkButton)
{
    QTest::mouseClick(m_window->findChild<QToolButton*>(QStringLiteral("interface-add")),
                      Qt::LeftButton);
    QStringList buttons;
    QString text;
    whenModal("QMessageBox", [&](QWidget& box) {
        text = dynamic_cast<QMessageBox&>(box).text();
        buttons = textsOf(buttonsOf(box));
        QTest::mouseClick(buttonsOf(box).front(), Qt::LeftButton);
    });
    QTableWidget* table = interfaceTable();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(table->model()->index(0, 1)).center());
    EXPECT_EQ(text, QStringLiteral("Could not open device !\n\n"));
    EXPECT_EQ(buttons, texts({"Ok"}));
}

TEST_F(ProjectPanelLook, DeletingAsksWithYesAndCancelInThisOrder)
{
    const Object* receive = add(ObjectType::Receive);
    QStringList buttons;
    for (const int pressed : {1, 0}) {
        objectTree()->setCurrentItem(treeItem(*receive));
        whenModal("QMessageBox", [&](QWidget& box) {
            buttons = textsOf(buttonsOf(box));
            QTest::mouseClick(buttonsOf(box).at(static_cast<std::size_t>(pressed)), Qt::LeftButton);
        });
        QMetaObject::invokeMethod(panel(), "slotDelete", Q_ARG(bool, false));
        EXPECT_EQ(buttons, texts({"Yes", "Cancel"}));
        EXPECT_EQ(project().objects().size(), static_cast<std::size_t>(pressed));
    }
}

} // namespace
