#include "gui/controls/QwtPushButton.h"
#include "gui/frame/FileDialogs.h"
#include "gui/traffic/DialogTransmitSetup.h"
#include "tests/gui/TransmitFixture.h"

#include <QLabel>
#include <QLayout>
#include <QSignalSpy>

// The transmit button of a line, and the import of lines.

namespace {

using gui::FileDialogs;

class TransmitSetup : public zul::test::TransmitTest
{
protected:
    void SetUp() override
    {
        TransmitTest::SetUp();
        addLine(1);
        open();
        click("dialogSetup");
        m_setup = m_dialog->findChild<DialogTransmitSetup*>();
    }
    void import(const QString& path)
    {
        FileDialogs::setNextFileName(path);
        QTest::mouseClick(m_setup->findChild<QPushButton*>(QStringLiteral("import")),
                          Qt::LeftButton);
    }
    DialogTransmitSetup* m_setup = nullptr;
};

TEST_F(TransmitSetup, HasItsTextsAndMargins)
{
    EXPECT_TRUE(m_setup->isVisible());
    EXPECT_EQ(m_setup->windowTitle(), QStringLiteral("ZUL Transmit Setup"));
    EXPECT_EQ(m_setup->findChild<QLabel*>()->text(), QStringLiteral("Import ZORB Configuration"));
    auto* close = m_setup->findChild<QPushButton*>(QStringLiteral("close"));
    EXPECT_EQ(m_setup->findChild<QPushButton*>(QStringLiteral("import"))->text(),
              QStringLiteral("Import"));
    EXPECT_EQ(close->text(), QStringLiteral("Close"));
    EXPECT_EQ(m_setup->layout()->contentsMargins(), QMargins(15, 15, 15, 15));
    EXPECT_EQ(m_setup->layout()->spacing(), 15);
    QTest::mouseClick(close, Qt::LeftButton);
    EXPECT_FALSE(m_setup->isVisible());
}

TEST_F(TransmitSetup, ImportReplacesTheLinesRebuildsAndMarks)
{
    m_home.write(QStringLiteral("zorb.zul"),
                 "<Z><CanMsg name=\"A\" msg.identifier=\"5\"/><CanMsg name=\"B\"/></Z>");
    import(m_home.file(QStringLiteral("zorb.zul")));
    EXPECT_EQ(FileDialogs::lastTitle(), QStringLiteral("Open ZORB Configuration"));
    EXPECT_EQ(FileDialogs::lastFilter(), QStringLiteral("ZORB File (*.zul);;All Files (*.*)"));
    ASSERT_EQ(m_table->rowCount(), 2);
    EXPECT_EQ(m_table->item(0, 0)->text(), QStringLiteral("A"));
    EXPECT_EQ(m_table->editor(0)->message().id, 5U);
    EXPECT_EQ(m_object->lines().size(), 2U);
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(TransmitSetup, CancelledChoiceChangesNothing)
{
    import(QString());
    EXPECT_EQ(m_object->lines().size(), 1U);
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(TransmitSetup, FileThatIsNoXmlLeavesTheLines)
{
    m_home.write(QStringLiteral("zorb.zul"), "nothing of the kind");
    import(m_home.file(QStringLiteral("zorb.zul")));
    EXPECT_EQ(m_table->rowCount(), 1);
    EXPECT_EQ(line(0).id, 1U);
}

TEST_F(TransmitSetup, SurvivesTheObjectOfItsWindow)
{
    m_home.write(QStringLiteral("zorb.zul"), "<Z><CanMsg/></Z>");
    m_project.deleteObject(m_object->id());
    import(m_home.file(QStringLiteral("zorb.zul")));
    EXPECT_EQ(m_table->rowCount(), 0);
}

class TransmitButton : public testing::Test
{
protected:
    void expectLook(const char* text, const char* toolTip, const QColor& background) const
    {
        EXPECT_EQ(m_push->text(), QLatin1String(text));
        EXPECT_EQ(m_push->toolTip(), QLatin1String(toolTip));
        EXPECT_EQ(m_push->palette().color(QPalette::Button), background);
    }

    gui::QwtTransmitButton m_button{7};
    QPushButton* m_push = m_button.findChild<QPushButton*>();
    QSpinBox* m_rate = m_button.findChild<QSpinBox*>();
    QSignalSpy m_single{&m_button, &gui::QwtTransmitButton::transmitSingle};
    QSignalSpy m_modes{&m_button, &gui::QwtTransmitButton::transmitMode};
    QSignalSpy m_rates{&m_button, &gui::QwtTransmitButton::transmitRate};
    const QColor m_green{180, 255, 180};
    const QColor m_red{255, 180, 180};
};

TEST_F(TransmitButton, HasItsSpinBoxAboveItsButton)
{
    EXPECT_EQ(m_button.minimumSize(), QSize(80, 40));
    EXPECT_EQ(m_button.layout()->contentsMargins(), QMargins());
    EXPECT_EQ(m_push->toolTip(), QStringLiteral("Transmit, Start/Stop Transmit"));
    EXPECT_EQ(m_rate->minimum(), 0);
    EXPECT_EQ(m_rate->maximum(), 100000);
    EXPECT_EQ(m_rate->singleStep(), 10);
    EXPECT_EQ(m_rate->suffix(), QStringLiteral(" ms"));
    EXPECT_EQ(m_rate->toolTip(), QStringLiteral("Transmit Rate"));
    EXPECT_EQ(m_rate->text(), QStringLiteral("Single"));
    m_button.resize(80, 40);
    m_button.show();
    EXPECT_EQ(m_rate->geometry(), QRect(0, 0, 80, 20));
    EXPECT_EQ(m_push->geometry(), QRect(0, 20, 80, 20));
}

TEST_F(TransmitButton, LooksAsItsStateSays)
{
    m_button.setRate(0);
    expectLook("Transmit", "Single Transmit", m_green);
    m_button.setMode(1);
    expectLook("Transmit", "Single Transmit", m_green);
    m_button.setRate(50);
    expectLook("Running", "Stop Transmit", m_green);
    EXPECT_EQ(m_rate->text(), QStringLiteral("50 ms"));
    m_button.setMode(0);
    expectLook("Stopped", "Start Transmit", m_red);
    m_button.setMode(7);
    expectLook("Running", "Stop Transmit", m_green);
    EXPECT_EQ(m_rates.count(), 0); // setters tell nothing
    EXPECT_EQ(m_modes.count(), 0);
}

TEST_F(TransmitButton, SendsSinglyWithoutARateAndFlipsTheModeWithOne)
{
    QTest::mouseClick(m_push, Qt::LeftButton);
    ASSERT_EQ(m_single.count(), 1);
    EXPECT_EQ(m_single[0][0], 7);
    m_button.setRate(10);
    m_button.setMode(7);
    QTest::mouseClick(m_push, Qt::LeftButton);
    QTest::mouseClick(m_push, Qt::LeftButton);
    ASSERT_EQ(m_modes.count(), 2);
    EXPECT_EQ(m_modes[0][1], 0);
    EXPECT_EQ(m_modes[1][0], 7);
    EXPECT_EQ(m_modes[1][1], 1);
    EXPECT_EQ(m_single.count(), 1);
    expectLook("Running", "Stop Transmit", m_green);
}

TEST_F(TransmitButton, RateIsToldWhenItIsTypedToTheEnd)
{
    m_rate->selectAll();
    QTest::keyClicks(m_rate, QStringLiteral("100"));
    EXPECT_EQ(m_rates.count(), 0); // 1 ms and 10 ms were not meant
    QTest::keyClick(m_rate, Qt::Key_Return);
    ASSERT_EQ(m_rates.count(), 1);
    EXPECT_EQ(m_rates[0][0], 7);
    EXPECT_EQ(m_rates[0][1], 100);
    expectLook("Stopped", "Start Transmit", m_red);
    QTest::keyClick(m_rate, Qt::Key_Up);
    EXPECT_EQ(m_rates.last()[1], 110);
}

TEST_F(TransmitButton, RateOutOfRangeIsShownAsTheNearestAndKept)
{
    m_button.setRate(2'000'000'000);
    EXPECT_EQ(m_rate->value(), 100000);
    EXPECT_EQ(m_button.rate(), 2'000'000'000);
    m_button.setRate(-3);
    EXPECT_EQ(m_rate->text(), QStringLiteral("Single"));
    expectLook("Stopped", "Start Transmit", m_red);
    EXPECT_EQ(m_rates.count(), 0);
}

} // namespace
