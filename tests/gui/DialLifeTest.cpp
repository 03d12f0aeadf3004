#include "gui/controls/QwtComboBox.h"
#include "gui/frame/ColorDialogs.h"
#include "gui/frame/DialogFilter.h"
#include "gui/frame/QwtIdSelect.h"
#include "gui/measure/DialNumber.h"
#include "gui/measure/DialogDial.h"
#include "gui/measure/WidgetDial.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectDial.h"
#include "project/ObjectStatistic.h"
#include "project/Project.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>

// A Data Visualization window over its life: settings that change under it, and other objects.

namespace {

/// A frame of 8 bytes, the fourth to the last of which hold 1.5.
MessageContainer batchOf(std::uint32_t id)
{
    auto* frame = new zul::MessageCan;
    frame->setId(id);
    frame->setByteCount(8);
    frame->msg()[4] = 0x3F;
    frame->msg()[5] = 0xC0;
    MessageContainer batch;
    batch.setSrcDest("Nose");
    batch.addMessage(SmartPtr<Message>(frame));
    return batch;
}

class DialLife : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object = make();
        m_object->settings().displayType = 1;
        m_object->settings().showProperties = true;
        m_dialog = new gui::DialogDial(m_object, nullptr);
        m_dialog->show();
        m_needle = m_dialog->findChild<WidgetDial*>();
    }
    void TearDown() override { delete m_dialog; }
    ObjectDial* make()
    {
        return dynamic_cast<ObjectDial*>(m_project.createObject(ObjectType::Dial));
    }
    template <typename Widget>
    Widget* find(const char* name = "") const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(name));
    }
    void feed(std::uint32_t id = 0)
    {
        MessageContainer batch = batchOf(id);
        m_dialog->receive(batch);
    }
    void type(const char* name, const char* text)
    {
        auto* field = find<QLineEdit>(name);
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(text));
    }
    int page() const { return m_dialog->findChild<QStackedWidget*>()->currentIndex(); }
    /// The action changes a property: the project has something to save, and the last frame is
    /// shown again.
    void expectShownAgain(const char* what, double value, const std::function<void()>& action)
    {
        m_project.save(QString());
        ASSERT_FALSE(m_project.isEdited());
        m_needle->setValue(77.0);
        action();
        EXPECT_TRUE(m_project.isEdited()) << what;
        EXPECT_DOUBLE_EQ(m_needle->value(), value) << what;
    }

    zul::test::TestHome m_home;
    zul::test::SettableClock m_clock;
    Project m_project{{ObjectDial::typeInfo(), ObjectStatistic::typeInfo()},
                      m_home.file(QStringLiteral("default.zul"))};
    ObjectDial* m_object = nullptr;
    QPointer<gui::DialogDial> m_dialog;
    WidgetDial* m_needle = nullptr;
};

TEST_F(DialLife, EachPropertyShowsTheLastFrameAgain)
{
    feed();
    ASSERT_DOUBLE_EQ(m_needle->value(), 1.5);
    expectShownAgain("name", 1.5, [&] { type("name", "N"); });
    expectShownAgain("unit", 1.5, [&] { type("unit", "u"); });
    expectShownAgain("minimum", 1.5, [&] { type("minimum", "-3"); });
    expectShownAgain("maximum", 1.5, [&] { type("maximum", "3"); });
    expectShownAgain("precision", 1.5, [&] { find<QSpinBox>("precision")->stepUp(); });
    expectShownAgain("colour", 1.5, [&] {
        gui::ColorDialogs::setNextColor(Qt::blue);
        QTest::mouseClick(find<QPushButton>("color"), Qt::LeftButton);
    });
    expectShownAgain("data type", 63.0, [&] {
        auto* types = find<gui::QwtComboBox>("dataType");
        QTest::keyClick(types, Qt::Key_Home);
        for (int i = 0; i < 14; ++i) { // "Char 4"
            QTest::keyClick(types, Qt::Key_Down);
        }
    });
    expectShownAgain("endian", 63.0, [&] { QTest::keyClick(find<QWidget>("endian"), Qt::Key_Up); });
    expectShownAgain("identifier", 63.0, [&] {
        m_dialog->findChild<gui::QwtIdSelect*>()->findChild<QSpinBox*>()->setValue(5);
    });
    expectShownAgain("panel", 63.0, [&] {
        auto* check = find<QCheckBox>("showProperties");
        QTest::mouseClick(check, Qt::LeftButton, Qt::NoModifier, QPoint(8, check->height() / 2));
    });
    expectShownAgain("form", 63.0, [&] {
        QTest::keyClick(find<QWidget>("displayType"), Qt::Key_Down);
        EXPECT_EQ(m_dialog->findChild<gui::DialNumber*>()->value(), 63.0);
        QTest::keyClick(find<QWidget>("displayType"), Qt::Key_Up);
    });
}

TEST_F(DialLife, PropertiesGoToTheNeedleAtOnce)
{
    type("name", "Speed");
    type("unit", "kt");
    type("minimum", "-3");
    type("maximum", "30.5");
    find<QSpinBox>("precision")->setValue(7);
    EXPECT_EQ(m_needle->name(), QStringLiteral("Speed"));
    EXPECT_EQ(m_needle->unit(), QStringLiteral("kt"));
    EXPECT_EQ(m_object->settings().unit, QStringLiteral("kt"));
    EXPECT_EQ(m_dialog->windowTitle(), QStringLiteral("Speed [kt]"));
    EXPECT_DOUBLE_EQ(m_needle->minimum(), -3.0);
    EXPECT_DOUBLE_EQ(m_needle->maximum(), 30.5);
    EXPECT_EQ(m_needle->precision(), 7);
}

TEST_F(DialLife, SettingsFromElsewhereFillEveryControl)
{
    auto& settings = m_object->settings();
    settings.name = QStringLiteral("Altitude");
    settings.unit = QStringLiteral("ft");
    settings.minValue = -1000.5;
    settings.maxValue = 1e6;
    settings.precision = 4;
    settings.canId = 0x123;
    settings.dataType = 9;
    settings.endian = 0;
    m_project.save(QString());
    m_dialog->updateDialog();
    EXPECT_EQ(find<QLineEdit>("name")->text(), QStringLiteral("Altitude"));
    EXPECT_EQ(find<QLineEdit>("unit")->text(), QStringLiteral("ft"));
    EXPECT_EQ(find<QLineEdit>("minimum")->text(), QStringLiteral("-1000.5"));
    EXPECT_EQ(find<QLineEdit>("maximum")->text(), QStringLiteral("1000000"));
    EXPECT_EQ(find<QSpinBox>("precision")->value(), 4);
    EXPECT_EQ(m_dialog->findChild<gui::QwtIdSelect*>()->id(), 0x123);
    EXPECT_EQ(find<gui::QwtComboBox>("dataType")->currentText(), QStringLiteral("Short 2..3"));
    EXPECT_EQ(find<gui::QwtComboBox>("endian")->currentText(), QStringLiteral("Little Endian"));
    EXPECT_EQ(m_needle->unit(), QStringLiteral("ft"));
    EXPECT_EQ(m_dialog->windowTitle(), QStringLiteral("Altitude [ft]"));
    EXPECT_FALSE(m_project.isEdited()) << "showing changes nothing";
}

TEST_F(DialLife, FormFromElsewhereTurnsThePageAndThePanel)
{
    feed();
    const auto* panel = find<QWidget>("properties");
    const auto expectForm = [&](int form, bool hasPanel, bool hasRange) {
        m_object->settings().displayType = form;
        m_dialog->updateDialog();
        EXPECT_EQ(page(), form);
        EXPECT_EQ(find<gui::QwtComboBox>("displayType")->currentIndex(), form);
        EXPECT_EQ(panel->isVisible(), hasPanel) << form;
        EXPECT_EQ(find<QLineEdit>("minimum")->isEnabled(), hasRange) << form;
        EXPECT_EQ(find<QLineEdit>("maximum")->isEnabled(), hasRange) << form;
    };
    expectForm(2, true, false);
    EXPECT_EQ(m_dialog->findChild<gui::DialNumber*>()->text(), QStringLiteral("1.50"))
        << "the last frame, in the new form";
    expectForm(0, false, false);
    expectForm(1, true, true);
}

TEST_F(DialLife, AnotherObjectTakesThePlaceOfTheFirst)
{
    feed();
    ObjectDial* other = make();
    other->settings().displayType = 2;
    other->settings().name = QStringLiteral("Other");
    other->settings().canId = 9;
    m_dialog->setObject(other);
    m_dialog->updateDialog();
    EXPECT_EQ(m_dialog->windowTitle(), QStringLiteral("Other []"));
    EXPECT_EQ(page(), 2);
    find<QSpinBox>("precision")->setValue(5);
    EXPECT_EQ(other->settings().precision, 5);
    EXPECT_EQ(m_object->settings().precision, 2) << "the former object is left alone";
    QTest::mouseClick(find<QWidget>("inputSwitch"), Qt::LeftButton);
    EXPECT_FALSE(other->settings().inputOn);
    EXPECT_TRUE(m_object->settings().inputOn);
    m_dialog->setObject(m_object);
}

TEST_F(DialLife, ObjectOfAnotherKindIsAsGoodAsNone)
{
    auto* filter = m_dialog->findChild<gui::DialogFilter*>();
    QTest::mouseClick(find<QWidget>("filterSetup"), Qt::LeftButton);
    ASSERT_TRUE(filter->isVisible());
    Object* strange = m_project.createObject(ObjectType::Statistic);
    m_dialog->setObject(strange);
    EXPECT_FALSE(filter->isVisible()) << "the filter was the former object's";
    m_project.save(QString());
    m_dialog->updateDialog();
    feed();
    type("name", "x");
    for (const char* name : {"inputSwitch", "filterSwitch", "filterSetup", "color"}) {
        QTest::mouseClick(find<QWidget>(name), Qt::LeftButton);
    }
    QTest::keyClick(find<QWidget>("displayType"), Qt::Key_Down);
    EXPECT_FALSE(filter->isVisible());
    EXPECT_FALSE(m_project.isEdited());
    EXPECT_EQ(find<QLabel>("inputCounter")->text(), QStringLiteral("0000"));
    m_dialog->setObject(m_object);
}

TEST_F(DialLife, SlotsStandInTheirOrder)
{
    const std::vector<const char*> wanted{"slotInputOn(bool)",
                                          "slotFilterSetup()",
                                          "slotFilterOn(bool)",
                                          "slotSetup()",
                                          "slotInputInterface(QString)",
                                          "slotId(int)",
                                          "slotParameter(ProfileParameter)",
                                          "slotDisplayType(int)",
                                          "slotDialProp(int)",
                                          "slotName(int,QString)",
                                          "slotUnit(int,QString)",
                                          "slotDataType(int)",
                                          "slotPrecision(int)",
                                          "slotMin(QString)",
                                          "slotMax(QString)",
                                          "slotColor()",
                                          "slotEndianFormat(int)"};
    std::vector<std::string> found;
    const QMetaObject* meta = m_dialog->metaObject();
    for (int i = gui::DialogBase::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        found.push_back(meta->method(i).methodSignature().toStdString());
    }
    EXPECT_EQ(found, std::vector<std::string>(wanted.begin(), wanted.end()));
}

TEST_F(DialLife, TinyWindowIsDrawn)
{
    for (const int form : {0, 1, 2}) {
        m_object->settings().displayType = form;
        m_dialog->updateDialog();
        feed();
        for (QWidget* widget : m_dialog->findChildren<QWidget*>()) {
            widget->setMinimumSize(0, 0);
        }
        m_dialog->setMinimumSize(1, 1);
        m_dialog->resize(1, 1);
        QApplication::processEvents();
        m_dialog->grab();
    }
}

} // namespace
