#include "gui/desktop/DialogInterfaceProperties.h"

#include "comm/CanInterface.h"
#include "core/Latin1.h"
#include "gui/desktop/WidgetProperty.h"
#include "tests/support/ConsoleCapture.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using comm::CanInterface;

class InterfaceProperties : public testing::Test
{
protected:
    void SetUp() override
    {
        m_interface.setName(QStringLiteral("Before"));
        m_devices = m_dialog.findChild<QListWidget*>(QStringLiteral("devices"));
    }
    void TearDown() override
    {
        m_dialog.setInterface(nullptr);
        m_interface.selectDevice(std::string());
    }
    void show(const char* module)
    {
        m_interface.selectDevice(module);
        m_dialog.setInterface(&m_interface);
        m_dialog.show();
    }
    WidgetProperty* editor(const char* key) const
    {
        return m_dialog.findChild<WidgetProperty*>(QLatin1String(key));
    }
    QLineEdit* text(const char* key) const { return editor(key)->findChild<QLineEdit*>(); }
    std::string property(const char* key) const { return m_interface.device()->getStringProp(key); }
    void clickDevice(const QString& name) const
    {
        const auto found = m_devices->findItems(name, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        QTest::mouseClick(m_devices->viewport(), Qt::LeftButton, Qt::NoModifier,
                          m_devices->visualItemRect(found.constFirst()).center());
    }
    QString chosen() const
    {
        return m_devices->currentItem() != nullptr ? m_devices->currentItem()->text() : QString();
    }
    static void retype(QLineEdit* field, const char* text)
    {
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(text));
    }
    void clickOk() const
    {
        QTest::mouseClick(m_dialog.findChild<QPushButton*>(QStringLiteral("ok")), Qt::LeftButton);
    }

    zul::test::ConsoleCapture m_console;
    CanInterface m_interface;
    gui::DialogInterfaceProperties m_dialog;
    QListWidget* m_devices = nullptr;
};

TEST_F(InterfaceProperties, WindowIsBuilt)
{
    EXPECT_TRUE(m_dialog.isModal());
    EXPECT_EQ(m_dialog.windowTitle(), QStringLiteral("Interface Properties"));
    EXPECT_EQ(m_devices->minimumWidth(), 150);
    EXPECT_EQ(m_dialog.findChild<QLabel*>()->text(), QStringLiteral("Available Devices"));
    EXPECT_EQ(m_dialog.findChild<QGroupBox*>()->title(), QStringLiteral("Interface Properties"));
    EXPECT_EQ(m_dialog.findChild<QPushButton*>(QStringLiteral("ok"))->text(), QStringLiteral("Ok"));
}

TEST_F(InterfaceProperties, DevicesStandInTheOrderOfTheRegistry)
{
    show("libCanGood");
    QStringList names;
    for (int i = 0; i < m_devices->count(); ++i) {
        names.append(m_devices->item(i)->data(Qt::UserRole).toString());
    }
    EXPECT_EQ(names, (QStringList{QStringLiteral("libCanCreateDeviceNull"),
                                  QStringLiteral("libCanGood"), QStringLiteral("libCanVirtual")}));
    EXPECT_EQ(chosen(), QStringLiteral("Good"));
    EXPECT_FALSE(m_dialog.hasChanged());
}

TEST_F(InterfaceProperties, InterfaceWithoutADeviceShowsNoEditorsAndNoChoice)
{
    show("");
    EXPECT_TRUE(m_dialog.findChildren<WidgetProperty*>().isEmpty());
    EXPECT_EQ(chosen(), QString());
    clickOk();
    EXPECT_FALSE(m_dialog.isVisible());
    EXPECT_EQ(m_interface.name(), QStringLiteral("Before"));
}

TEST_F(InterfaceProperties, EditorsFollowTheDescriptionOfTheDevice)
{
    show("libCanGood");
    int last = -1;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_dialog));
    for (const char* key : {"InterfaceName", "Btr", "Nbtp", "Dbtp", "Tdcr", "Channel", "Address"}) {
        ASSERT_NE(editor(key), nullptr) << key;
        EXPECT_GT(editor(key)->y(), last) << key;
        last = editor(key)->y();
    }
    EXPECT_EQ(m_dialog.findChildren<WidgetProperty*>().size(), 7);
}

TEST_F(InterfaceProperties, EditorsSpanBothColumnsOfTheGrid)
{
    show("libCanGood");
    const auto* grid = qobject_cast<QGridLayout*>(editor("Btr")->parentWidget()->layout());
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->horizontalSpacing(), 5);
    EXPECT_EQ(grid->verticalSpacing(), 5);
    EXPECT_EQ(grid->contentsMargins(), QMargins(5, 5, 5, 5));
    EXPECT_EQ(grid->columnStretch(0), 1);
    EXPECT_EQ(grid->columnStretch(1), 2);
    int expectedRow = 0;
    for (const char* key : {"InterfaceName", "Btr", "Nbtp", "Dbtp", "Tdcr", "Channel", "Address"}) {
        int row = -1;
        int column = -1;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(grid->indexOf(editor(key)), &row, &column, &rows, &columns);
        EXPECT_EQ(row, expectedRow) << key;
        EXPECT_EQ(column, 0) << key;
        EXPECT_EQ(rows, 1) << key;
        EXPECT_EQ(columns, 2) << key;
        EXPECT_EQ(grid->rowStretch(row), 0) << key;
        ++expectedRow;
    }
    EXPECT_GT(grid->rowStretch(expectedRow), 0);
}

TEST_F(InterfaceProperties, KeyThatTheDeviceNoLongerHasReadsAsEmpty)
{
    show("libCanGood");
    retype(text("Address"), "bus a");
    ASSERT_EQ(text("Address")->text(), QStringLiteral("bus a"));
    m_interface.device()->properties()->erase("Address");
    retype(text("InterfaceName"), "N"); // shows all values anew
    EXPECT_EQ(text("Address")->text(), QString());
    EXPECT_EQ(editor("Address")->value(), "");
    EXPECT_EQ(m_interface.device()->properties()->count("Address"), 0U);
}

TEST_F(InterfaceProperties, ValuesComeFromTheDeviceWithoutBeingSentBack)
{
    m_interface.selectDevice("libCanGood");
    Device& device = *m_interface.device();
    device.setProperty("InterfaceName", "Nose");
    device.setProperty("Btr", "28");
    device.setProperty("Channel", "2");
    device.setProperty("PublishCounts", "1");
    const std::string applied = property("ApplyCount");
    m_dialog.setInterface(&m_interface);
    EXPECT_EQ(text("InterfaceName")->text(), QStringLiteral("Nose"));
    EXPECT_EQ(editor("Btr")->findChild<QComboBox*>()->currentText(), QStringLiteral("500 kbit/s"));
    EXPECT_EQ(editor("Channel")->findChild<QComboBox*>()->currentText(), QStringLiteral("B"));
    EXPECT_EQ(editor("Address")->value(), "");
    device.setProperty("PublishCounts", "1");
    EXPECT_EQ(property("ApplyCount"), applied);
    EXPECT_FALSE(m_dialog.hasChanged());
}

TEST_F(InterfaceProperties, EveryChangeReachesTheDeviceAtOnce)
{
    show("libCanGood");
    retype(text("Address"), "bus a");
    EXPECT_EQ(property("Address"), "bus a");
    auto* channel = editor("Channel")->findChild<QComboBox*>();
    QTest::keyClick(channel, Qt::Key_End);
    EXPECT_EQ(property("Channel"), "2");
    EXPECT_TRUE(m_dialog.hasChanged());
}

TEST_F(InterfaceProperties, InterfaceNameRenamesAtOnce)
{
    show("libCanGood");
    retype(text("InterfaceName"), "N");
    EXPECT_EQ(m_interface.name(), QStringLiteral("N"));
    QTest::sendKeyEvent(QTest::Click, text("InterfaceName"), Qt::Key_Odiaeresis,
                        QString(QChar(0xF6)), Qt::NoModifier);
    EXPECT_EQ(m_interface.name(), QStringLiteral("N") + QChar(0xF6));
    EXPECT_EQ(property("InterfaceName"), "N\xF6");
}

TEST_F(InterfaceProperties, OkTakesTheNameFromTheDevice)
{
    m_interface.selectDevice("libCanGood");
    m_interface.device()->setProperty("InterfaceName", "Tail");
    m_dialog.setInterface(&m_interface);
    m_dialog.show();
    clickOk();
    EXPECT_FALSE(m_dialog.isVisible());
    EXPECT_EQ(m_interface.name(), QStringLiteral("Tail"));
    EXPECT_TRUE(m_dialog.hasChanged());
}

TEST_F(InterfaceProperties, OkEmptiesTheNameForADeviceWithoutOne)
{
    show("libCanGood");
    clickOk();
    EXPECT_EQ(m_interface.name(), QString());
}

TEST_F(InterfaceProperties, EnterInAnEditorLeavesTheDialogOpen)
{
    show("libCanGood");
    QTest::keyClick(text("InterfaceName"), Qt::Key_Return);
    EXPECT_TRUE(m_dialog.isVisible());
}

TEST_F(InterfaceProperties, ChoosingAnotherDeviceReplacesTheEditors)
{
    show("libCanGood");
    clickDevice(QStringLiteral("Virtual CAN Bus"));
    ASSERT_NE(m_interface.device(), nullptr);
    EXPECT_EQ(m_interface.device()->info().moduleName, "libCanVirtual");
    EXPECT_EQ(editor("Address"), nullptr);
    ASSERT_NE(editor("BusName"), nullptr);
    EXPECT_EQ(editor("BusName")->value(), "Bus A");
    EXPECT_TRUE(m_dialog.hasChanged());
}

TEST_F(InterfaceProperties, PressingTheChosenDeviceAgainKeepsIt)
{
    show("libCanGood");
    m_interface.device()->setProperty("Address", "kept");
    clickDevice(QStringLiteral("Good"));
    EXPECT_EQ(property("Address"), "kept");
    EXPECT_FALSE(m_dialog.hasChanged());
}

TEST_F(InterfaceProperties, FirstDeviceOfAnInterfaceCanBeChosen)
{
    show("");
    clickDevice(QStringLiteral("Good"));
    ASSERT_NE(m_interface.device(), nullptr);
    EXPECT_NE(editor("InterfaceName"), nullptr);
}

TEST_F(InterfaceProperties, DeviceIsChosenByTheKeyboardToo)
{
    show("libCanGood");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_dialog));
    m_devices->setFocus();
    QTest::keyClick(m_devices, Qt::Key_Down);
    EXPECT_EQ(chosen(), QStringLiteral("Virtual CAN Bus"));
    ASSERT_NE(m_interface.device(), nullptr);
    EXPECT_EQ(m_interface.device()->info().moduleName, "libCanVirtual");
    EXPECT_NE(editor("BusName"), nullptr);
    EXPECT_TRUE(m_dialog.hasChanged());
}

TEST_F(InterfaceProperties, FocusAloneChoosesNoDevice)
{
    show("");
    QApplication::setActiveWindow(&m_dialog);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_dialog));
    m_dialog.findChild<QPushButton*>(QStringLiteral("ok"))->setFocus();
    m_devices->setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(m_devices->hasFocus());
    ASSERT_NE(m_devices->currentItem(), nullptr); // by the focus
    EXPECT_EQ(m_interface.device(), nullptr);
    EXPECT_FALSE(m_dialog.hasChanged());
    QTest::keyClick(m_devices, Qt::Key_Down);
    ASSERT_NE(m_interface.device(), nullptr);
    EXPECT_EQ(m_interface.device()->info().moduleName, "libCanGood");
}

TEST_F(InterfaceProperties, DeviceThatCannotBeMadeIsAConsoleLineAndNoEditors)
{
    show("libCanGood");
    for (int i = 0; i < m_devices->count(); ++i) {
        if (m_devices->item(i)->data(Qt::UserRole).toString() ==
            QStringLiteral("libCanCreateDeviceNull")) {
            clickDevice(m_devices->item(i)->text());
        }
    }
    EXPECT_EQ(m_interface.device(), nullptr);
    EXPECT_TRUE(m_dialog.findChildren<WidgetProperty*>().isEmpty());
    clickOk();
    EXPECT_EQ(m_interface.name(), QStringLiteral("Before"));
    const std::string& out = m_console.out();
    const std::string line = "Error selecting device <libCanCreateDeviceNull>\n";
    ASSERT_NE(out.find(line), std::string::npos);
    EXPECT_EQ(out.find(line, out.find(line) + 1), std::string::npos); // once
}

TEST_F(InterfaceProperties, PropertiesThatDependOnOneAnotherAreShownAnew)
{
    show("libCanVirtual");
    const std::string before = editor("NBTP")->value();
    auto* rate = editor("BitRate")->findChild<QComboBox*>();
    EXPECT_EQ(rate->currentText(), QStringLiteral("1 Mbit/s"));
    QTest::keyClick(rate, Qt::Key_Down);
    QTest::keyClick(rate, Qt::Key_Down);
    EXPECT_EQ(property("BitRate"), "500000");
    EXPECT_NE(editor("NBTP")->value(), before);
    EXPECT_EQ(editor("NBTP")->value(), property("NBTP"));
    EXPECT_EQ(editor("BTR")->value(), property("BTR"));
    EXPECT_EQ(zul::toLatin1(editor("NBTP")->findChild<QLineEdit*>(QStringLiteral("NBTP"))->text()),
              property("NBTP"));
}

TEST_F(InterfaceProperties, ValueThatTheDeviceRefusesIsTakenBack)
{
    show("libCanVirtual");
    const std::string before = property("NBTP");
    auto* field = editor("NBTP")->findChild<QLineEdit*>(QStringLiteral("NBTP"));
    retype(field, "nonsense");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(property("NBTP"), before);
    EXPECT_EQ(zul::toLatin1(field->text()), before);
}

TEST_F(InterfaceProperties, AnotherInterfaceReplacesTheContents)
{
    show("libCanGood");
    CanInterface other;
    other.selectDevice("libCanVirtual");
    m_dialog.setInterface(&other);
    EXPECT_EQ(chosen(), QStringLiteral("Virtual CAN Bus"));
    EXPECT_EQ(editor("Address"), nullptr);
    retype(text("InterfaceName"), "Other");
    EXPECT_EQ(other.name(), QStringLiteral("Other"));
    EXPECT_EQ(m_interface.name(), QStringLiteral("Before"));
    m_dialog.setInterface(nullptr);
    EXPECT_TRUE(m_dialog.findChildren<WidgetProperty*>().isEmpty());
    other.selectDevice(std::string());
}

} // namespace
