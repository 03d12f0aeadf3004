#include "gui/frame/DialogFilter.h"
#include "gui/frame/DialogSelectId.h"
#include "gui/frame/QwtIdSelect.h"
#include "project/Filter.h"

#include <QApplication>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

// What Return does in the dialog that edits a filter, where a slip changes what windows show.

namespace {

class FilterKeys : public testing::Test
{
protected:
    FilterKeys()
    {
        filter.setType(1);
        filter.setIds({7, 8});
        dialog.edit(filter);
        QApplication::setActiveWindow(&dialog);
    }
    ~FilterKeys() override { gui::DialogSelectId::destroy(); }

    template <typename Control>
    Control& find(const char* name) const
    {
        return *dialog.findChild<Control*>(QLatin1String(name));
    }
    QListWidget& list() const { return find<QListWidget>("ids"); }
    /// Gives the control the focus, and presses the key there.
    void press(QWidget& control, Qt::Key key = Qt::Key_Return)
    {
        control.setFocus();
        ASSERT_TRUE(control.hasFocus() || control.focusProxy() != nullptr);
        QTest::keyClick(QApplication::focusWidget(), key);
    }
    std::vector<std::uint32_t> ids() const { return filter.ids(); }

    const std::vector<std::uint32_t> both{7, 8};
    Filter filter;
    gui::DialogFilter dialog;
};

TEST_F(FilterKeys, NothingIsAddedRightAfterOpening)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Return);
    if (QApplication::focusWidget() != nullptr) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    EXPECT_EQ(ids(), both);
    EXPECT_TRUE(dialog.isVisible());
    for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
        EXPECT_FALSE(button->isDefault()) << qPrintable(button->text());
    }
}

TEST_F(FilterKeys, ReturnInTheFieldOfTheIdentifierAddsIt)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto& field = *dialog.findChild<gui::QwtIdSelect*>()->findChild<QSpinBox*>();
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, QString::number(key == Qt::Key_Return ? 12 : 13));
        QTest::keyClick(&field, key);
    }
    EXPECT_EQ(ids(), (std::vector<std::uint32_t>{7, 8, 12, 13}));
}

TEST_F(FilterKeys, ReturnOnAButtonPressesThatButton)
{
    list().item(0)->setSelected(true);
    press(find<QPushButton>("delete"));
    EXPECT_EQ(ids(), std::vector<std::uint32_t>{8});
    press(find<QPushButton>("add"));
    EXPECT_EQ(ids(), (std::vector<std::uint32_t>{0, 8}));
    press(find<QPushButton>("clear"), Qt::Key_Enter);
    EXPECT_TRUE(ids().empty());
    press(find<QPushButton>("ok"));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(ids().empty());
}

TEST_F(FilterKeys, ReturnElsewhereDoesNothing)
{
    list().setCurrentRow(1);
    press(list());
    press(find<QGroupBox>("single"));
    filter.setType(0);
    dialog.setFilter(&filter);
    press(find<QGroupBox>("limit"));
    press(find<QSpinBox>("minId"));
    press(find<QSpinBox>("maxId"));
    EXPECT_EQ(ids(), both);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(filter.type(), 0);
}

TEST_F(FilterKeys, BoundThatIsTypedCountsWithReturn)
{
    filter.setType(0);
    dialog.setFilter(&filter);
    auto& min = find<QSpinBox>("minId");
    min.setFocus();
    min.selectAll();
    QTest::keyClicks(&min, QStringLiteral("55"));
    QTest::keyClick(&min, Qt::Key_Return);
    EXPECT_EQ(filter.minId(), 55);
    EXPECT_EQ(ids(), both);
}

TEST_F(FilterKeys, EscapeCloses)
{
    press(list(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

} // namespace
