#include "gui/controls/QwtComboBox.h"
#include "tests/gui/ReceiveFixture.h"

#include <QApplication>
#include <QHeaderView>

// The header and the columns of the Receive window, and number types that no window offers.

namespace {

using zul::test::batchOf;

constexpr int canAerospace = 3;
constexpr int raw = 4;
constexpr int profile = 6;

class ReceiveLook : public zul::test::ReceiveTest
{
protected:
    /// What choosing the mode in the combo box does.
    void choose(int mode)
    {
        auto* box = m_dialog->findChild<gui::QwtComboBox*>(QStringLiteral("displayMode"));
        box->setData(mode);
        emit box->activated(box->currentIndex());
        QApplication::processEvents();
    }
    bool isEnabled(const char* name) const
    {
        return m_dialog->findChild<QWidget*>(QLatin1String(name))->isEnabled();
    }
    int widthOfAllColumns() const { return m_tree->header()->length(); }
};

TEST_F(ReceiveLook, HeaderHasItsInputForm)
{
    for (const char* name : {"inputSwitch", "inputCounter", "inputSelect", "filterSetup"}) {
        EXPECT_TRUE(isEnabled(name)) << name;
    }
    for (const char* name : {"outputSwitch", "outputCounter", "outputSelect"}) {
        EXPECT_FALSE(isEnabled(name)) << name;
    }
}

TEST_F(ReceiveLook, LastColumnOfTheCanModesTakesTheRest)
{
    m_dialog->show();
    for (const int mode : {0, canAerospace, raw, canAerospace, profile, 0}) {
        choose(mode);
        if (mode == raw || mode == profile) {
            continue;
        }
        for (const int width : {900, 1400}) {
            m_dialog->resize(width, 300);
            QApplication::processEvents();
            ASSERT_EQ(m_tree->columnCount(), 5);
            EXPECT_EQ(widthOfAllColumns(), m_tree->viewport()->width()) << mode << " " << width;
            EXPECT_EQ(m_tree->columnWidth(3), 50);
        }
    }
}

TEST_F(ReceiveLook, NumberTypesThatAreNeitherOfTheTwoShowDecimalNumbers)
{
    for (const int numberType : {2, -1, 77}) {
        m_object->settings().numberType = numberType;
        m_dialog->updateDialog();
        choose(0);
        click("clear");
        feed(batchOf(0x1F, 8));
        ASSERT_TRUE(painted(2, "S 31")) << numberType;
        EXPECT_TRUE(m_tree->topLevelItem(0)->text(4).contains(QStringLiteral("171")));
        choose(raw);
        feed(batchOf(0x1F, 8));
        ASSERT_TRUE(painted(1, "31")) << numberType;
        choose(profile);
        feed(batchOf(2U << 26 | 4U << 19 | 100U << 2, 8));
        ASSERT_TRUE(painted(2, "$2/$4/$64/$0/$0")) << numberType;
        EXPECT_EQ(m_object->settings().numberType, numberType) << "and the file keeps it";
    }
}

TEST_F(ReceiveLook, TreeGoesOnSortingBehindARowThatCameToItsPlace)
{
    m_tree->sortByColumn(2, Qt::DescendingOrder);
    for (const std::uint32_t id : {30U, 10U, 20U, 40U, 25U}) {
        feed(batchOf(id, 8));
    }
    const auto ids = [this] {
        QStringList list;
        for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
            list << m_tree->topLevelItem(i)->text(2).section(QLatin1Char(' '), -1);
        }
        return list.join(QLatin1Char(' '));
    };
    EXPECT_EQ(ids(), QStringLiteral("40 30 25 20 10"));
    EXPECT_TRUE(m_tree->isSortingEnabled());
    EXPECT_TRUE(m_tree->header()->isSortIndicatorShown());
    EXPECT_EQ(m_tree->header()->sortIndicatorSection(), 2);
    EXPECT_EQ(m_tree->header()->sortIndicatorOrder(), Qt::DescendingOrder);
    m_dialog->show();
    QTest::mouseClick(m_tree->header()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(m_tree->header()->sectionViewportPosition(2) + 20, 5));
    EXPECT_EQ(ids(), QStringLiteral("10 20 25 30 40"));
    feed(batchOf(27, 8));
    EXPECT_EQ(ids(), QStringLiteral("10 20 25 27 30 40"));
}

TEST_F(ReceiveLook, RowsThatAreNoLongerInOrderAreSortedAnewWhenOneComes)
{
    for (const std::uint32_t id : {1U, 2U, 2U, 3U, 3U, 3U}) {
        feed(batchOf(id, 8));
    }
    ASSERT_TRUE(painted(0, "1"));
    m_tree->sortByColumn(0, Qt::AscendingOrder);
    for (int i = 0; i < 5; ++i) {
        feed(batchOf(1, 8)); // six by now
    }
    feed(batchOf(4, 8));
    ASSERT_TRUE(painted(0, "1"));
    QStringList ids;
    for (int i = 0; i < 4; ++i) {
        ids << m_tree->topLevelItem(i)->text(2);
    }
    EXPECT_EQ(ids, (QStringList{QStringLiteral("S 4"), QStringLiteral("S 2"), QStringLiteral("S 3"),
                                QStringLiteral("S 1")}));
}

} // namespace
