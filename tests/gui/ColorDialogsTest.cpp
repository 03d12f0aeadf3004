#include "gui/frame/ColorDialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <gtest/gtest.h>

namespace {

using gui::ColorDialogs;

/// Runs `act` with the chooser that is up.
void whenOpen(const std::function<void(QColorDialog& chooser)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto* chooser = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(chooser, nullptr);
        act(*chooser);
    });
}

TEST(ColorDialogs, StartsAtTheColourAndGivesTheOneThatIsAccepted)
{
    QWidget parent;
    QColor first;
    whenOpen([&](QColorDialog& chooser) {
        first = chooser.currentColor();
        chooser.setCurrentColor(QColor(1, 2, 3));
        QTest::keyClick(&chooser, Qt::Key_Return);
    });
    EXPECT_EQ(ColorDialogs::choose(&parent, QColor(9, 8, 7)), QColor(1, 2, 3));
    EXPECT_EQ(first, QColor(9, 8, 7));
}

TEST(ColorDialogs, GivesNoColourWhenItIsCancelled)
{
    QWidget parent;
    whenOpen([](QColorDialog& chooser) { QTest::keyClick(&chooser, Qt::Key_Escape); });
    EXPECT_FALSE(ColorDialogs::choose(&parent, QColor(9, 8, 7)).isValid());
}

TEST(ColorDialogs, GivesNoColourWhenItsWindowGoes)
{
    QPointer<QWidget> parent = new QWidget;
    whenOpen([&](QColorDialog&) { delete parent; });
    EXPECT_FALSE(ColorDialogs::choose(parent, QColor(9, 8, 7)).isValid());
}

TEST(ColorDialogs, NextAnswerHoldsOnce)
{
    ColorDialogs::setNextColor(QColor(1, 2, 3));
    EXPECT_EQ(ColorDialogs::choose(nullptr, QColor()), QColor(1, 2, 3));
    whenOpen([](QColorDialog& chooser) { QTest::keyClick(&chooser, Qt::Key_Escape); });
    EXPECT_FALSE(ColorDialogs::choose(nullptr, QColor(9, 8, 7)).isValid());
}

} // namespace
