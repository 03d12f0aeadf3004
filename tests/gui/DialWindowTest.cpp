#include "gui/controls/QwtComboBox.h"
#include "gui/controls/WidgetLight.h"
#include "gui/frame/ColorDialogs.h"
#include "gui/frame/DialogFilter.h"
#include "gui/frame/MessageGuiDialog.h"
#include "gui/frame/QwtIdSelect.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/frame/WidgetInterfaceSelect.h"
#include "gui/measure/DialNumber.h"
#include "gui/measure/DialogDial.h"
#include "gui/measure/WidgetDial.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectDial.h"
#include "project/Project.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTest>

#include <cstring>
#include <gtest/gtest.h>

namespace {

using gui::ColorDialogs;
using zul::MessageCan;

std::array<std::uint8_t, 4> floatBytes(float value)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return {static_cast<std::uint8_t>(bits >> 24U), static_cast<std::uint8_t>(bits >> 16U),
            static_cast<std::uint8_t>(bits >> 8U), static_cast<std::uint8_t>(bits)};
}

/// A frame of 8 bytes with the value in the bytes 4 to 7.
MessageCan* frameOf(std::uint32_t id, float value)
{
    auto* frame = new MessageCan;
    frame->setId(id);
    frame->setByteCount(8);
    const auto bytes = floatBytes(value);
    for (int i = 0; i < 4; ++i) {
        frame->msg()[4 + i] = bytes[static_cast<std::size_t>(i)];
    }
    return frame;
}

MessageContainer batchOf(std::initializer_list<MessageCan*> frames, const char* source = "Nose")
{
    MessageContainer batch;
    batch.setSrcDest(source);
    for (MessageCan* frame : frames) {
        batch.addMessage(SmartPtr<Message>(frame));
    }
    return batch;
}

class DialWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object = dynamic_cast<ObjectDial*>(m_project.createObject(ObjectType::Dial));
        open();
    }
    void TearDown() override { delete m_dialog; }
    /// A window for the object as it is now, of a saved project.
    void open()
    {
        delete m_dialog;
        m_dialog = new gui::DialogDial(m_object, nullptr);
        m_dialog->show();
        m_project.save(QString());
    }
    void openAs(int displayType)
    {
        m_object->settings().displayType = displayType;
        open();
    }
    template <typename Widget>
    Widget* find(const char* name = "") const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(name));
    }
    void feed(MessageContainer batch) { m_dialog->receive(batch); }
    void feedValue(float value) { feed(batchOf({frameOf(m_object->settings().canId, value)})); }
    void click(const char* name) { QTest::mouseClick(find<QWidget>(name), Qt::LeftButton); }
    void toggleProperties()
    {
        auto* check = find<QCheckBox>("showProperties");
        QTest::mouseClick(check, Qt::LeftButton, Qt::NoModifier, QPoint(8, check->height() / 2));
    }
    /// Chooses the entry of a selection by keys.
    void choose(const char* name, int index)
    {
        auto* box = find<gui::QwtComboBox>(name);
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < index; ++i) {
            QTest::keyClick(box, Qt::Key_Down);
        }
        ASSERT_EQ(box->currentIndex(), index);
    }
    void type(const char* name, const char* text)
    {
        auto* field = find<QLineEdit>(name);
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(text));
    }
    QString number() const { return m_dialog->findChild<gui::DialNumber*>()->text(); }
    WidgetLight* light(int byte, int bit) const
    {
        return m_dialog->findChild<WidgetLight*>(QString::asprintf("light%d.%d", byte, bit));
    }
    QString counted() const { return find<QLabel>("inputCounter")->text(); }

    zul::test::TestHome m_home;
    zul::test::SettableClock m_clock;
    Project m_project{{ObjectDial::typeInfo()}, m_home.file(QStringLiteral("default.zul"))};
    ObjectDial* m_object = nullptr;
    QPointer<gui::DialogDial> m_dialog;
};

TEST_F(DialWindow, HasItsControls)
{
    QStringList forms;
    const auto* form = find<gui::QwtComboBox>("displayType");
    for (int i = 0; i < form->count(); ++i) {
        forms.append(form->itemText(i));
        EXPECT_EQ(form->itemData(i).toInt(), i);
    }
    EXPECT_EQ(forms.join(QLatin1Char('|')), QStringLiteral("Discrete|Dial|Numeric"));
    const auto* types = find<gui::QwtComboBox>("dataType");
    QStringList names;
    std::vector<int> codes;
    for (int i = 0; i < types->count(); ++i) {
        names.append(types->itemText(i));
        codes.push_back(types->itemData(i).toInt());
    }
    EXPECT_EQ(names.join(QLatin1Char('|')),
              QStringLiteral("Double 0..7|Float 0..3|Float 4..7|Long 0..7|Int 0..3|Int 4..7|Short "
                             "0..1|Short 2..3|Short 4..5|Short 6..7|Char 0|Char 1|Char 2|Char "
                             "3|Char 4|Char 5|Char 6|Char 7"));
    EXPECT_EQ(codes,
              (std::vector<int>{17, 14, 15, 16, 12, 13, 8, 9, 10, 11, 0, 1, 2, 3, 4, 5, 6, 7}));
    const auto* endian = find<gui::QwtComboBox>("endian");
    EXPECT_EQ(endian->itemText(0), QStringLiteral("Little Endian"));
    EXPECT_EQ(endian->itemText(1), QStringLiteral("Big Endian"));
    EXPECT_EQ(find<QSpinBox>("precision")->minimum(), 0);
    EXPECT_EQ(find<QSpinBox>("precision")->maximum(), 10);
    EXPECT_EQ(find<QPushButton>("color")->text(), QStringLiteral("Select"));
    EXPECT_TRUE(find<QWidget>("filterSetup")->isEnabled());
    EXPECT_FALSE(find<QWidget>("outputSwitch")->isEnabled());
}

TEST_F(DialWindow, PropertiesHaveTheirLabels)
{
    auto* grid = qobject_cast<QGridLayout*>(find<QWidget>("properties")->layout());
    const std::vector<std::pair<const char*, const char*>> wanted{
        {"Name :", "name"},           {"Unit :", "unit"},    {"Data Type :", "dataType"},
        {"Precision :", "precision"}, {"Min :", "minimum"},  {"Max :", "maximum"},
        {"Color :", "color"},         {"Endian :", "endian"}};
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const int row = static_cast<int>(i) / 2;
        const int column = static_cast<int>(i) % 2 * 2;
        const auto* label = qobject_cast<QLabel*>(grid->itemAtPosition(row, column)->widget());
        EXPECT_EQ(label->text(), QLatin1String(wanted[i].first));
        EXPECT_EQ(grid->itemAtPosition(row, column + 1)->widget()->objectName(),
                  QLatin1String(wanted[i].second));
    }
}

TEST_F(DialWindow, ShowsItsDefaults)
{
    EXPECT_EQ(find<gui::QwtComboBox>("displayType")->currentIndex(), 0);
    EXPECT_EQ(find<gui::QwtComboBox>("dataType")->currentText(), QStringLiteral("Float 4..7"));
    EXPECT_EQ(find<gui::QwtComboBox>("endian")->currentText(), QStringLiteral("Big Endian"));
    EXPECT_EQ(find<QLineEdit>("name")->text(), QStringLiteral("NoName"));
    EXPECT_EQ(find<QLineEdit>("unit")->text(), QString());
    EXPECT_EQ(find<QLineEdit>("minimum")->text(), QStringLiteral("0"));
    EXPECT_EQ(find<QLineEdit>("maximum")->text(), QStringLiteral("1"));
    EXPECT_EQ(find<QSpinBox>("precision")->value(), 2);
    EXPECT_EQ(find<QCheckBox>("showProperties")->text(), QStringLiteral("Show Properties"));
    EXPECT_FALSE(find<QWidget>("properties")->isVisible());
    EXPECT_FALSE(m_project.isEdited()) << "filling the controls changes nothing";
}

TEST_F(DialWindow, TitleIsNameAndUnitWhateverTheObjectIsCalled)
{
    EXPECT_EQ(m_dialog->windowTitle(), QStringLiteral("NoName []"));
    m_dialog->setTypeTitle(QStringLiteral("Data Visualization"));
    m_dialog->setName(QStringLiteral("Dial 1"));
    EXPECT_EQ(m_dialog->windowTitle(), QStringLiteral("NoName []"));
    EXPECT_EQ(m_dialog->name(), QStringLiteral("Dial 1"));
    openAs(1);
    toggleProperties();
    type("name", "Speed");
    type("unit", "kt");
    EXPECT_EQ(m_dialog->windowTitle(), QStringLiteral("Speed [kt]"));
}

TEST_F(DialWindow, PropertiesShowForValuesOnlyAndRangeForTheNeedleOnly)
{
    toggleProperties();
    EXPECT_TRUE(m_object->settings().showProperties);
    EXPECT_EQ(find<QCheckBox>("showProperties")->text(), QStringLiteral("Hide Properties"));
    EXPECT_FALSE(find<QWidget>("properties")->isVisible()) << "not for lights";
    choose("displayType", 1);
    EXPECT_TRUE(find<QWidget>("properties")->isVisible());
    EXPECT_TRUE(find<QLineEdit>("minimum")->isEnabled());
    choose("displayType", 2);
    EXPECT_TRUE(find<QWidget>("properties")->isVisible());
    EXPECT_FALSE(find<QLineEdit>("minimum")->isEnabled());
    EXPECT_FALSE(find<QLineEdit>("maximum")->isEnabled());
    toggleProperties();
    EXPECT_FALSE(find<QWidget>("properties")->isVisible());
    EXPECT_EQ(find<QCheckBox>("showProperties")->text(), QStringLiteral("Show Properties"));
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(DialWindow, FormTurnsThePageAndGrowsTheWindowToItsHint)
{
    toggleProperties();
    m_dialog->resize(m_dialog->minimumWidth(), 200);
    choose("displayType", 1);
    EXPECT_EQ(m_object->settings().displayType, 1);
    EXPECT_TRUE(m_dialog->findChild<WidgetDial*>()->isVisible());
    EXPECT_GE(m_dialog->height(), m_dialog->sizeHint().height());
    const QSize large(m_dialog->sizeHint() + QSize(100, 100));
    m_dialog->resize(large);
    choose("displayType", 2);
    EXPECT_EQ(m_dialog->size(), large) << "it never shrinks";
    EXPECT_TRUE(m_dialog->findChild<gui::DialNumber*>()->isVisible());
}

TEST_F(DialWindow, GrowsInTheDesktopToo)
{
    QMdiArea area;
    area.resize(900, 900);
    area.show();
    QMdiSubWindow* frame = area.addSubWindow(m_dialog);
    frame->show();
    toggleProperties();
    frame->resize(frame->minimumSizeHint().width(), 150);
    choose("displayType", 1);
    EXPECT_GE(frame->height(), frame->sizeHint().height());
    frame->showMaximized();
    const QSize maximized = frame->size();
    choose("displayType", 2);
    EXPECT_EQ(frame->size(), maximized);
    m_dialog->setParent(nullptr);
}

TEST_F(DialWindow, BeforeTheFirstMatchTheDisplayShows100)
{
    openAs(2);
    EXPECT_EQ(number(), QStringLiteral("100.00"));
    const auto* display = m_dialog->findChild<gui::DialNumber*>();
    EXPECT_EQ(display->digitCount(), 6);
    EXPECT_EQ(display->segmentStyle(), QLCDNumber::Flat);
    EXPECT_EQ(display->mode(), QLCDNumber::Dec);
    EXPECT_EQ(display->minimumSize(), QSize(220, 60));
    EXPECT_EQ(display->palette().color(QPalette::WindowText), QColor(200, 0, 0));
    EXPECT_EQ(display->palette().color(QPalette::Window), QColor(Qt::black));
    QSpinBox* precision = find<QSpinBox>("precision");
    precision->setValue(3);
    EXPECT_EQ(number(), QStringLiteral("100.00")) << "no frame to show again";
}

TEST_F(DialWindow, DigitsFollowTheValue)
{
    openAs(2);
    feedValue(-5.25F);
    EXPECT_EQ(number(), QStringLiteral("-5.25"));
    EXPECT_EQ(m_dialog->findChild<gui::DialNumber*>()->digitCount(), 5);
    feedValue(0.0F);
    EXPECT_EQ(number(), QStringLiteral("0.00"));
    EXPECT_EQ(m_dialog->findChild<gui::DialNumber*>()->digitCount(), 4);
    feedValue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(number(), QStringLiteral("----"));
    feedValue(3.4e38F);
    EXPECT_EQ(m_dialog->findChild<gui::DialNumber*>()->digitCount(), 42);
}

TEST_F(DialWindow, DigitsAreDrawnInTheColourOnBlack)
{
    openAs(2);
    feedValue(88.0F);
    const QImage image = m_dialog->findChild<gui::DialNumber*>()->grab().toImage();
    int colored = 0;
    int black = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colored += image.pixelColor(x, y) == QColor(200, 0, 0) ? 1 : 0;
            black += image.pixelColor(x, y) == QColor(Qt::black) ? 1 : 0;
        }
    }
    EXPECT_GT(colored, 100);
    EXPECT_GT(black, colored);
}

TEST_F(DialWindow, SeveralMatchesInABatchShowOnlyTheLast)
{
    openAs(2);
    feed(batchOf({frameOf(0, 1.0F), frameOf(0, 2.0F), frameOf(5, 3.0F)}));
    EXPECT_EQ(number(), QStringLiteral("2.00"));
    EXPECT_EQ(counted(), QStringLiteral("0003"));
}

TEST_F(DialWindow, BatchOfAnotherInterfaceChangesNothing)
{
    m_object->settings().inputInterface = QStringLiteral("Tail");
    openAs(2);
    feedValue(2.0F);
    EXPECT_EQ(number(), QStringLiteral("100.00"));
    EXPECT_EQ(counted(), QStringLiteral("0000"));
    feed(batchOf({frameOf(0, 3.0F)}, "Tail"));
    EXPECT_EQ(number(), QStringLiteral("3.00"));
    EXPECT_EQ(counted(), QStringLiteral("0001"));
}

TEST_F(DialWindow, InterfaceOfTheHeaderCounts)
{
    openAs(2);
    emit m_dialog->findChild<WidgetHeader*>()->signalInputInterface(QStringLiteral("Tail"));
    EXPECT_EQ(m_object->settings().inputInterface, QStringLiteral("Tail"));
    EXPECT_TRUE(m_project.isEdited());
    feedValue(2.0F);
    EXPECT_EQ(number(), QStringLiteral("100.00"));
}

TEST_F(DialWindow, InputSwitchAndFilterDecide)
{
    openAs(2);
    click("inputSwitch");
    EXPECT_FALSE(m_object->settings().inputOn);
    feedValue(2.0F);
    EXPECT_EQ(number(), QStringLiteral("100.00"));
    EXPECT_EQ(counted(), QStringLiteral("0001"));
    click("inputSwitch");
    m_object->filter().setMin(1);
    click("filterSwitch");
    EXPECT_TRUE(m_object->filter().isOn());
    feedValue(2.0F);
    EXPECT_EQ(number(), QStringLiteral("100.00"));
    auto* filter = m_dialog->findChild<gui::DialogFilter*>();
    click("filterSetup");
    EXPECT_TRUE(filter->isVisible());
    filter->findChild<QSpinBox*>(QStringLiteral("minId"))->setValue(0);
    feedValue(2.0F);
    EXPECT_EQ(number(), QStringLiteral("2.00"));
}

TEST_F(DialWindow, PropertyShowsTheLastFrameAgain)
{
    m_object->settings().showProperties = true;
    openAs(2);
    feed(batchOf({frameOf(0, 2.5F)}));
    choose("dataType", 14); // Char 4
    EXPECT_EQ(m_object->settings().dataType, 4);
    EXPECT_EQ(number(), QStringLiteral("64.00")) << "the first byte of 2.5";
    choose("dataType", 8); // Short 4..5
    EXPECT_EQ(number(), QStringLiteral("16416.00"));
    choose("endian", 0);
    EXPECT_EQ(m_object->settings().endian, 0);
    EXPECT_EQ(number(), QStringLiteral("8256.00"));
    find<QSpinBox>("precision")->setValue(0);
    EXPECT_EQ(m_object->settings().precision, 0);
    EXPECT_EQ(number(), QStringLiteral("8256"));
    EXPECT_TRUE(m_project.isEdited());
    choose("displayType", 1);
    EXPECT_DOUBLE_EQ(m_dialog->findChild<WidgetDial*>()->value(), 8256.0);
    choose("displayType", 0);
    EXPECT_EQ(light(4, 6)->state(), 1);
}

TEST_F(DialWindow, TextFieldsGoToObjectAndNeedle)
{
    m_object->settings().showProperties = true;
    openAs(1);
    const auto* needle = m_dialog->findChild<WidgetDial*>();
    type("minimum", "-2.5");
    type("maximum", "7.25");
    EXPECT_DOUBLE_EQ(m_object->settings().minValue, -2.5);
    EXPECT_DOUBLE_EQ(needle->minimum(), -2.5);
    EXPECT_DOUBLE_EQ(m_object->settings().maxValue, 7.25);
    EXPECT_DOUBLE_EQ(needle->maximum(), 7.25);
    EXPECT_EQ(find<QLineEdit>("minimum")->text(), QStringLiteral("-2.5")) << "stays as typed";
    type("maximum", "high");
    EXPECT_DOUBLE_EQ(m_object->settings().maxValue, 0.0) << "no number";
    type("name", "Speed");
    type("unit", "kt");
    EXPECT_EQ(m_object->settings().name, QStringLiteral("Speed"));
    EXPECT_EQ(needle->name(), QStringLiteral("Speed"));
    EXPECT_EQ(m_object->settings().unit, QStringLiteral("kt"));
    EXPECT_EQ(needle->unit(), QStringLiteral("kt"));
}

TEST_F(DialWindow, ColourIsChosenAndACancelledChooserLeavesIt)
{
    m_object->settings().showProperties = true;
    openAs(1);
    ColorDialogs::setNextColor(QColor());
    click("color");
    EXPECT_EQ(m_object->color().red, 200);
    EXPECT_FALSE(m_project.isEdited());
    ColorDialogs::setNextColor(QColor(1, 2, 250));
    click("color");
    EXPECT_EQ(m_object->color().red, 1);
    EXPECT_EQ(m_object->color().green, 2);
    EXPECT_EQ(m_object->color().blue, 250);
    EXPECT_EQ(m_dialog->findChild<WidgetDial*>()->color(), QColor(1, 2, 250));
    EXPECT_EQ(m_dialog->findChild<gui::DialNumber*>()->palette().color(QPalette::WindowText),
              QColor(1, 2, 250));
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(DialWindow, TypedIdentifierIsTheOneThatIsShown)
{
    openAs(2);
    auto* select = m_dialog->findChild<gui::QwtIdSelect*>();
    select->findChild<QSpinBox*>()->setValue(7);
    EXPECT_EQ(m_object->settings().canId, 7U);
    EXPECT_TRUE(m_project.isEdited());
    feed(batchOf({frameOf(7, 7.5F), frameOf(0, 1.0F)}));
    EXPECT_EQ(number(), QStringLiteral("7.50"));
}

TEST_F(DialWindow, ChosenParameterGivesNameAndUnitAlone)
{
    openAs(1);
    ProfileParameter parameter;
    parameter.nme = QStringLiteral("Altitude");
    parameter.pun = QStringLiteral("ft");
    parameter.id = 99;
    parameter.dtc = 3;
    parameter.max = 50.0;
    emit m_dialog->findChild<gui::QwtIdSelect*>()->signalParameter(parameter);
    EXPECT_EQ(m_object->settings().name, QStringLiteral("Altitude"));
    EXPECT_EQ(m_object->settings().unit, QStringLiteral("ft"));
    EXPECT_EQ(find<QLineEdit>("name")->text(), QStringLiteral("Altitude"));
    EXPECT_EQ(m_object->settings().canId, 0U);
    EXPECT_EQ(m_object->settings().dataType, 15);
    EXPECT_DOUBLE_EQ(m_object->settings().maxValue, 1.0);
    EXPECT_EQ(m_dialog->windowTitle(), QStringLiteral("Altitude [ft]"));
}

TEST_F(DialWindow, AnotherWindowOpensItOnAnIdentifier)
{
    MessageGuiDialog request(static_cast<int>(ObjectType::Dial), 0x12345);
    m_dialog->guiMessage(&request);
    EXPECT_EQ(m_object->settings().canId, 0x12345U);
    EXPECT_EQ(m_dialog->findChild<gui::QwtIdSelect*>()->id(), 0x12345);
    Message other(99);
    m_dialog->guiMessage(&other);
    m_dialog->guiMessage(nullptr);
    EXPECT_EQ(m_object->settings().canId, 0x12345U);
}

TEST_F(DialWindow, SettingsFromElsewhereAreShown)
{
    auto& settings = m_object->settings();
    settings.displayType = 2;
    settings.precision = 99;
    settings.dataType = 77;
    settings.endian = 5;
    settings.canId = 0xFFFFFFFF;
    m_object->color() = {999, -4, 7};
    m_dialog->updateDialog();
    EXPECT_EQ(m_dialog->findChild<QStackedWidget*>()->currentIndex(), 2);
    EXPECT_EQ(find<QSpinBox>("precision")->value(), 10);
    EXPECT_EQ(find<gui::QwtComboBox>("dataType")->currentIndex(), -1);
    EXPECT_EQ(m_dialog->findChild<WidgetDial*>()->color(), QColor(255, 0, 7));
    EXPECT_EQ(settings.precision, 99) << "only what is shown is bounded";
    settings.displayType = 77;
    m_dialog->updateDialog();
    EXPECT_EQ(m_dialog->findChild<QStackedWidget*>()->currentIndex(), 0);
}

TEST_F(DialWindow, WithoutItsObjectItDoesNothing)
{
    click("filterSetup");
    m_project.deleteObject(m_object->id());
    EXPECT_FALSE(m_dialog->findChild<gui::DialogFilter*>()->isVisible());
    feed(batchOf({frameOf(0, 1.0F)}));
    m_dialog->updateDialog();
    MessageGuiDialog request(static_cast<int>(ObjectType::Dial), 1);
    m_dialog->guiMessage(&request);
    m_dialog->setName(QStringLiteral("Gone"));
    click("inputSwitch");
    choose("displayType", 1);
    type("name", "x");
    click("color");
    EXPECT_EQ(counted(), QStringLiteral("0000"));
}

TEST_F(DialWindow, LightsHaveTheirHeadsAndNumbers)
{
    EXPECT_EQ(light(0, 7)->text(), QStringLiteral("63"));
    EXPECT_EQ(light(7, 0)->text(), QStringLiteral("0"));
    auto* grid = qobject_cast<QGridLayout*>(light(0, 0)->parentWidget()->layout());
    EXPECT_EQ(grid->spacing(), 1);
    EXPECT_EQ(grid->contentsMargins(), QMargins(5, 5, 5, 5));
    QStringList heads;
    for (int column = 1; column < grid->columnCount(); ++column) {
        if (QLayoutItem* item = grid->itemAtPosition(0, column)) {
            heads.append(qobject_cast<QLabel*>(item->widget())->text());
        }
    }
    EXPECT_EQ(heads.join(QLatin1Char(' ')), QStringLiteral("B7 B6 B5 B4 B3 B2 B1 B0"));
    QStringList rows;
    for (int row = 1; row < grid->rowCount(); ++row) {
        if (QLayoutItem* item = grid->itemAtPosition(row, 0)) {
            rows.append(qobject_cast<QLabel*>(item->widget())->text());
        }
    }
    EXPECT_EQ(rows.join(QLatin1Char('|')),
              QStringLiteral("Byte 0|Byte 1|Byte 2|Byte 3|Byte 4|Byte 5|Byte 6|Byte 7"));
    EXPECT_EQ(grid->columnMinimumWidth(5), 5);
    EXPECT_EQ(grid->rowMinimumHeight(5), 5);
    EXPECT_GT(light(4, 0)->y() - light(3, 0)->y(), light(3, 0)->y() - light(2, 0)->y() + 4);
    EXPECT_GT(light(0, 3)->x() - light(0, 4)->x(), light(0, 4)->x() - light(0, 5)->x() + 4);
}

TEST_F(DialWindow, LightsShowTheBitsAndTheDataTypesNumbers)
{
    auto* frame = new MessageCan;
    frame->setByteCount(8);
    frame->msg()[0] = 0x80;
    frame->msg()[1] = 6;
    frame->msg()[4] = 0x01;
    feed(batchOf({frame}));
    const auto colorOf = [](WidgetLight* one) { return one->grab().toImage().pixelColor(3, 3); };
    EXPECT_EQ(colorOf(light(0, 7)), QColor(0, 255, 0));
    EXPECT_EQ(colorOf(light(0, 6)), QColor(255, 0, 0));
    EXPECT_EQ(light(4, 0)->state(), 1);
    EXPECT_EQ(light(4, 7)->text(), QStringLiteral("15"));
    EXPECT_EQ(light(5, 0)->text(), QStringLiteral("0"));
    EXPECT_EQ(light(6, 0)->text(), QString());
    EXPECT_EQ(light(0, 7)->text(), QStringLiteral("63"));
    auto* shortFrame = new MessageCan;
    shortFrame->setByteCount(1);
    shortFrame->msg()[0] = 0xFF;
    shortFrame->msg()[4] = 0xFF;
    feed(batchOf({shortFrame}));
    EXPECT_EQ(light(0, 0)->state(), 1);
    EXPECT_EQ(light(4, 0)->state(), 0) << "the frame has no such byte";
    EXPECT_EQ(light(4, 7)->text(), QStringLiteral("31"));
    auto* longFrame = new MessageCan;
    longFrame->setByteCount(64);
    longFrame->msg()[7] = 0x01;
    feed(batchOf({longFrame}));
    EXPECT_EQ(light(7, 0)->state(), 1);
}

} // namespace
