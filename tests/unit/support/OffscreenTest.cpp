#include <QApplication>
#include <QLabel>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace {

TEST(Offscreen, WindowsCanBeShownWithoutADisplay)
{
    QLabel label(QStringLiteral("ZUL"));
    label.show();
    QTableWidget table(3, 3);
    table.setItem(0, 0, new QTableWidgetItem(QStringLiteral("12.5")));
    table.show();
    QApplication::processEvents();
    EXPECT_TRUE(label.isVisible());
    EXPECT_FALSE(label.grab().isNull());
    EXPECT_FALSE(table.grab().isNull());
}

} // namespace
