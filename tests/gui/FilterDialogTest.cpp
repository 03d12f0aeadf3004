#include "gui/frame/DialogFilter.h"
#include "gui/frame/DialogSelectId.h"
#include "gui/frame/QwtIdSelect.h"
#include "gui/frame/WidgetHeader.h"
#include "project/Filter.h"
#include "tests/gui/ReceiveFixture.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QToolButton>

// The dialog that edits a filter, and how a window uses it.

namespace {

using gui::DialogFilter;
using gui::DialogSelectId;
using gui::QwtIdSelect;

QString text(const char* latin)
{
    return QString::fromLatin1(latin);
}

class FilterDialog : public testing::Test
{
protected:
    FilterDialog()
    {
        dialog.setFilter(&filter);
        dialog.show();
    }
    ~FilterDialog() override { DialogSelectId::destroy(); }

    template <typename Control>
    Control& find(const char* name) const
    {
        return *dialog.findChild<Control*>(text(name));
    }
    QSpinBox& min() const { return find<QSpinBox>("minId"); }
    QSpinBox& max() const { return find<QSpinBox>("maxId"); }
    QGroupBox& limit() const { return find<QGroupBox>("limit"); }
    QGroupBox& single() const { return find<QGroupBox>("single"); }
    QListWidget& list() const { return find<QListWidget>("ids"); }
    QwtIdSelect& idSelect() const { return *dialog.findChild<QwtIdSelect*>(); }
    QSpinBox& typedId() const { return *idSelect().findChild<QSpinBox*>(); }
    void click(const char* name) const
    {
        QTest::mouseClick(&find<QPushButton>(name), Qt::LeftButton);
    }
    // A click on the box's check mark.
    static void toggle(QGroupBox& box)
    {
        QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(12, 8));
    }
    static void type(QSpinBox& box, const char* number)
    {
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, text(number));
    }
    QStringList listed() const
    {
        QStringList ids;
        for (int i = 0; i < list().count(); ++i) {
            ids << list().item(i)->text();
        }
        return ids;
    }

    Filter filter;
    DialogFilter dialog;
};

TEST_F(FilterDialog, HasItsTextsRangesAndColours)
{
    EXPECT_EQ(dialog.windowTitle(), text("Filter"));
    EXPECT_FALSE(dialog.windowIcon().isNull());
    EXPECT_FALSE(dialog.isModal());
    EXPECT_EQ(limit().title(), text("Limit Id Filter"));
    EXPECT_EQ(single().title(), text("Single Id Filter"));
    QStringList labels;
    for (const QLabel* label : limit().findChildren<QLabel*>()) {
        labels << label->text();
    }
    EXPECT_EQ(labels, (QStringList{text("Min Id:"), text("Max Id:")}));
    EXPECT_EQ(min().minimum(), 0);
    EXPECT_EQ(max().maximum(), 0x1FFFFFFF);
    EXPECT_EQ(list().maximumWidth(), 100);
    const auto expectButton = [this](const char* name, const char* label, const QColor& color) {
        EXPECT_EQ(find<QPushButton>(name).text(), text(label));
        EXPECT_EQ(find<QPushButton>(name).palette().color(QPalette::Button), color);
    };
    expectButton("add", "<-- Add", QColor(180, 255, 180));
    expectButton("delete", "--> Delete", QColor(255, 255, 180));
    expectButton("clear", "Clear", QColor(255, 180, 180));
    EXPECT_EQ(find<QPushButton>("ok").text(), text("Ok"));
}

TEST_F(FilterDialog, ShowsTheFilter)
{
    Filter other;
    other.setType(1);
    other.setMin(100);
    other.setMax(200);
    other.setIds({0x1FFFFFFF, 7});
    dialog.setFilter(&other);
    EXPECT_FALSE(limit().isChecked());
    EXPECT_TRUE(single().isChecked());
    EXPECT_EQ(min().value(), 100);
    EXPECT_EQ(max().value(), 200);
    EXPECT_EQ(min().maximum(), 200);
    EXPECT_EQ(max().minimum(), 100);
    EXPECT_EQ(listed(), (QStringList{text("7"), text("536870911")}));
    EXPECT_EQ(other.minId(), 100);
    EXPECT_EQ(other.maxId(), 200);
    dialog.setFilter(&filter); // whose bounds are wider
    EXPECT_EQ(min().value(), 0);
    EXPECT_EQ(max().value(), 0x1FFFFFFF);
    EXPECT_TRUE(listed().isEmpty());
    EXPECT_EQ(other.type(), 1);
}

TEST_F(FilterDialog, TypeThatIsNeitherOfTheTwoIsShownAsSingle)
{
    filter.setType(5);
    dialog.setFilter(&filter);
    EXPECT_TRUE(single().isChecked());
    EXPECT_FALSE(limit().isChecked());
    EXPECT_EQ(filter.type(), 5);
}

TEST_F(FilterDialog, BoxesActAsARadioPair)
{
    EXPECT_TRUE(limit().isChecked());
    toggle(single());
    EXPECT_EQ(filter.type(), 1);
    EXPECT_FALSE(limit().isChecked());
    toggle(single()); // stays
    EXPECT_TRUE(single().isChecked());
    EXPECT_EQ(filter.type(), 1);
    toggle(limit());
    EXPECT_EQ(filter.type(), 0);
    EXPECT_FALSE(single().isChecked());
    toggle(limit());
    EXPECT_TRUE(limit().isChecked());
    EXPECT_EQ(filter.type(), 0);
}

TEST_F(FilterDialog, BoundsCountAtOnceAndLimitEachOther)
{
    filter.setOn(true);
    type(min(), "100");
    type(max(), "200");
    EXPECT_FALSE(filter.matches(99));
    EXPECT_TRUE(filter.matches(100));
    EXPECT_TRUE(filter.matches(200));
    EXPECT_FALSE(filter.matches(201));
    EXPECT_EQ(min().maximum(), 200);
    EXPECT_EQ(max().minimum(), 100);
    type(min(), "300"); // not above the upper bound
    EXPECT_EQ(filter.minId(), 200);
    EXPECT_EQ(filter.maxId(), 200);
}

TEST_F(FilterDialog, BoundsTakeHexadecimalNumbers)
{
    type(min(), "0x1f");
    EXPECT_EQ(filter.minId(), 0x1F);
    type(max(), "0x2E");
    EXPECT_EQ(filter.maxId(), 0x2E);
}

TEST_F(FilterDialog, AddDeleteAndClearChangeTheListAtOnce)
{
    toggle(single());
    type(typedId(), "55");
    click("add");
    type(typedId(), "0x800");
    click("add");
    type(typedId(), "55");
    click("add");
    EXPECT_EQ(listed(), (QStringList{text("55"), text("2048")})) << "each once";
    EXPECT_EQ(filter.ids(), (std::vector<std::uint32_t>{55, 2048}));
    click("delete"); // nothing is selected
    EXPECT_EQ(filter.ids().size(), 2U);
    const QRect place = list().visualItemRect(list().item(1));
    QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    click("delete");
    EXPECT_EQ(filter.ids(), std::vector<std::uint32_t>{55});
    EXPECT_EQ(listed(), QStringList{text("55")});
    click("clear");
    EXPECT_TRUE(filter.ids().empty());
    EXPECT_TRUE(listed().isEmpty());
}

TEST_F(FilterDialog, DeleteRemovesAllThatAreSelected)
{
    filter.setType(1);
    filter.setIds({1, 2, 3, 0xFFFFFFFF});
    dialog.setFilter(&filter);
    list().item(0)->setSelected(true);
    list().item(3)->setSelected(true);
    click("delete");
    EXPECT_EQ(filter.ids(), (std::vector<std::uint32_t>{2, 3}));
}

TEST_F(FilterDialog, ReturnAddsWhatWasTypedAndTheNextOneCanBeTypedAtOnce)
{
    QApplication::setActiveWindow(&dialog);
    toggle(single());
    type(typedId(), "12");
    QTest::keyClick(&typedId(), Qt::Key_Return);
    EXPECT_EQ(filter.ids(), std::vector<std::uint32_t>{12});
    click("add");
    EXPECT_TRUE(typedId().hasFocus());
    QTest::keyClicks(&typedId(), text("34"));
    EXPECT_EQ(idSelect().id(), 34) << "in place of the one before";
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(FilterDialog, ChosenIdentifierIsAddedWithoutAnotherClick)
{
    toggle(single());
    idSelect().setId(77);
    emit idSelect().signalSelect();
    EXPECT_EQ(filter.ids(), std::vector<std::uint32_t>{77});
}

TEST_F(FilterDialog, OkHides)
{
    click("ok");
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FilterDialog, WithoutAFilterNothingHappens)
{
    dialog.setFilter(nullptr);
    toggle(single());
    type(min(), "5");
    type(max(), "6");
    emit idSelect().signalSelect();
    for (const char* name : {"add", "delete", "clear"}) {
        find<QPushButton>(name).click();
    }
    EXPECT_EQ(filter.type(), 0);
    EXPECT_EQ(filter.minId(), 0);
    EXPECT_EQ(filter.maxId(), 0x1FFFFFFF);
    EXPECT_TRUE(filter.ids().empty());
}

class ReceiveFilter : public zul::test::ReceiveTest
{
protected:
    DialogFilter& filterDialog() const { return *m_dialog->findChild<DialogFilter*>(); }
};

TEST_F(ReceiveFilter, FilterSetupShowsTheObjectsFilterAndMarksTheProject)
{
    m_object->filter().setMax(500);
    EXPECT_FALSE(filterDialog().isVisible());
    click("filterSetup");
    EXPECT_TRUE(filterDialog().isVisible());
    EXPECT_FALSE(filterDialog().isModal());
    EXPECT_TRUE(m_project.isEdited());
    EXPECT_EQ(filterDialog().findChild<QSpinBox*>(text("maxId"))->value(), 500);
}

TEST_F(ReceiveFilter, ChangesCountForTheFramesThatFollow)
{
    m_object->filter().setOn(true);
    click("filterSetup");
    feed(zul::test::batchOf(600, 1));
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
    filterDialog().findChild<QSpinBox*>(text("maxId"))->setValue(500);
    feed(zul::test::batchOf(601, 1));
    EXPECT_EQ(m_tree->topLevelItemCount(), 1);
    EXPECT_EQ(m_object->filter().maxId(), 500);
}

TEST_F(ReceiveFilter, DialogLetsGoOfTheFilterWhenTheObjectGoes)
{
    click("filterSetup");
    auto* max = filterDialog().findChild<QSpinBox*>(text("maxId"));
    m_dialog->setObject(nullptr);
    EXPECT_FALSE(filterDialog().isVisible());
    max->setValue(500);
    EXPECT_EQ(m_object->filter().maxId(), 0x1FFFFFFF);
    click("filterSetup"); // and there is none to show
    EXPECT_FALSE(filterDialog().isVisible());
    m_dialog->setObject(m_object);
}

} // namespace
