#include "tests/gui/FunctionGenFixture.h"

namespace {

using gui::QwtComboBox;
using zul::test::FunctionGenWindow;
using zul::test::items;
using zul::test::labelOf;

TEST_F(FunctionGenWindow, NodePanelHasItsControls)
{
    EXPECT_EQ(find<QPushButton>("search")->text(), QLatin1String("Search Generators"));
    EXPECT_EQ(find<QListWidget>("nodes")->maximumHeight(), 60);
    EXPECT_EQ(find<QListWidget>("nodes")->iconSize(), QSize(22, 22));
    EXPECT_EQ(labelOf(find<QWidget>("nodeId")), "Node Id");
    EXPECT_EQ(labelOf(find<QWidget>("baseId")), "CAN Base Id");
    EXPECT_EQ(labelOf(find<QWidget>("baudrate")), "Baudrate");
    EXPECT_EQ(labelOf(find<QWidget>("flash")), "Store Data");
    EXPECT_EQ(labelOf(find<QWidget>("flashStatus")), "Set/Flash Status");
    for (const char* name : {"setNodeId", "setBaseId", "setBaudrate"}) {
        EXPECT_EQ(find<QPushButton>(name)->text(), QLatin1String("Set"));
    }
    EXPECT_EQ(find<QPushButton>("flash")->text(), QLatin1String("Flash"));
    EXPECT_EQ(find<QLabel>("flashStatus")->minimumHeight(), 20);
    EXPECT_EQ(find<QSpinBox>("nodeId")->minimum(), 0);
    EXPECT_EQ(find<QSpinBox>("nodeId")->maximum(), 255);
    EXPECT_EQ(find<QSpinBox>("baseId")->minimum(), 0);
    EXPECT_EQ(find<QSpinBox>("baseId")->maximum(), 0x1FFFFFFF);
    EXPECT_EQ(items(find<QwtComboBox>("baudrate")),
              "1 MBit/s=0 500 KBit/s=1 250 KBit/s=2 125 KBit/s=3 ");
    const auto* progress = find<QProgressBar>("searchProgress");
    EXPECT_EQ(progress->minimum(), 0);
    EXPECT_EQ(progress->maximum(), 255);
    EXPECT_FALSE(progress->isTextVisible());
    EXPECT_EQ(find<QSpinBox>("nodeId")->value(), 7);
    EXPECT_EQ(find<QSpinBox>("baseId")->value(), 1000);
    EXPECT_EQ(find<QwtComboBox>("baudrate")->currentIndex(), 2);
    EXPECT_EQ(status(), "--- #b4b4b4");
    EXPECT_EQ(buttons(), "on on on on ");
}

TEST_F(FunctionGenWindow, PagesHaveTheirControls)
{
    ASSERT_EQ(tabs()->count(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(tabs()->tabText(i), QStringLiteral("Channel %1").arg(i));
        EXPECT_FALSE(tabs()->tabIcon(i).isNull());
        tabs()->setCurrentIndex(i);
        EXPECT_EQ(labelOf(control<QWidget>("active")), "Channel Activation");
        EXPECT_EQ(control<QCheckBox>("active")->text(), QLatin1String("Channel Active"));
        EXPECT_EQ(labelOf(control<QWidget>("waveform")), "Waveform");
        EXPECT_EQ(labelOf(control<QWidget>("canId")), "CAN Id");
        EXPECT_EQ(labelOf(control<QWidget>("dataType")), "Data Type");
        EXPECT_EQ(labelOf(control<QWidget>("separation")), "Message Separation");
        EXPECT_EQ(labelOf(control<QWidget>("frequency")), "Frequency");
        EXPECT_EQ(labelOf(control<QWidget>("amplitude")), "Amplitude");
        EXPECT_EQ(labelOf(control<QWidget>("offset")), "Offset");
    }
    EXPECT_EQ(items(control<QwtComboBox>("waveform")), "Sine=0 Square=1 Triangle=2 Sawtooth=3 ");
    EXPECT_EQ(items(control<QwtComboBox>("dataType")),
              "AS_FLOAT=2 AS_LONG=3 AS_ULONG=4 AS_SHORT=6 AS_USHORT=7 AS_CHAR=9 AS_UCHAR=10 ");
    EXPECT_EQ(control<QSpinBox>("canId")->maximum(), 0x1FFFFFFF);
    EXPECT_EQ(control<QSpinBox>("separation")->minimum(), 1);
    EXPECT_EQ(control<QSpinBox>("separation")->maximum(), 255);
    EXPECT_EQ(control<QSpinBox>("separation")->suffix(), QLatin1String(" ms"));
    EXPECT_EQ(items(control<QwtComboBox>("frequencyRange")),
              "0.0-0.01=-2 0.0-0.1=-1 0.0-1.0=0 0.0-10.0=1 0.0-100.0=2 ");
    EXPECT_EQ(control<QComboBox>("amplitudeRange")->count(), 12);
    EXPECT_EQ(items(control<QComboBox>("amplitudeRange")),
              items(control<QComboBox>("offsetRange")));
    const auto dial = [&](const char* name) {
        const auto* found = control<QDial>(name);
        EXPECT_TRUE(found->notchesVisible());
        EXPECT_EQ(found->notchTarget(), 30.0);
        return std::to_string(found->minimum()) + " to " + std::to_string(found->maximum());
    };
    EXPECT_EQ(dial("frequencyDial"), "1 to 1000");
    EXPECT_EQ(dial("amplitudeDial"), "0 to 1000");
    EXPECT_EQ(dial("offsetDial"), "-1000 to 1000");
    EXPECT_EQ(control<QDoubleSpinBox>("frequency")->suffix(), QLatin1String(" Hz"));
    EXPECT_EQ(control<QDoubleSpinBox>("frequency")->maximum(), 100.0);
    EXPECT_EQ(control<QDoubleSpinBox>("amplitude")->maximum(), 1e9);
    EXPECT_EQ(control<QDoubleSpinBox>("offset")->minimum(), -1e9);
    EXPECT_EQ(control<QDoubleSpinBox>("offset")->maximum(), 1e9);
    // With four decimals the lowest numbers show.
    choose(control<QComboBox>("frequencyRange"), 5, Qt::Key_Up);
    EXPECT_EQ(control<QDoubleSpinBox>("frequency")->minimum(), 0.01);
    choose(control<QComboBox>("amplitudeRange"), 12, Qt::Key_Up);
    EXPECT_EQ(control<QDoubleSpinBox>("amplitude")->minimum(), 0.0001);
}

TEST_F(FunctionGenWindow, ShowsTheChannelsOfItsObject)
{
    channel(3) = {3, false, 2, 2000, 6, 0, 2, 3, 0.5F, 25.0F, -300.0F, 99};
    open();
    tabs()->setCurrentIndex(3);
    EXPECT_FALSE(control<QCheckBox>("active")->isChecked());
    EXPECT_EQ(control<QComboBox>("waveform")->currentText(), QLatin1String("Triangle"));
    EXPECT_EQ(control<QSpinBox>("canId")->value(), 2000);
    EXPECT_EQ(control<QComboBox>("dataType")->currentText(), QLatin1String("AS_SHORT"));
    EXPECT_EQ(control<QSpinBox>("separation")->value(), 99);
    EXPECT_EQ(control<QComboBox>("frequencyRange")->currentText(), QLatin1String("0.0-1.0"));
    EXPECT_EQ(control<QDial>("frequencyDial")->value(), 500);
    EXPECT_EQ(control<QDoubleSpinBox>("frequency")->value(), 0.5);
    EXPECT_EQ(control<QDoubleSpinBox>("frequency")->decimals(), 2);
    EXPECT_NEAR(control<QDoubleSpinBox>("frequency")->singleStep(), 0.01, 1e-9);
    EXPECT_EQ(control<QDial>("amplitudeDial")->value(), 250);
    EXPECT_EQ(control<QDoubleSpinBox>("amplitude")->decimals(), 0);
    EXPECT_EQ(control<QDial>("offsetDial")->value(), -300);
    EXPECT_EQ(control<QDoubleSpinBox>("offset")->value(), -300.0);
    EXPECT_NEAR(control<QDoubleSpinBox>("offset")->singleStep(), 10.0, 1e-6);
    EXPECT_TRUE(m_outlet.frames.empty());
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(FunctionGenWindow, NarrowRangeShowsAllDigitsOfTheNumber)
{
    channel().frequencyFactor = -2;
    channel().frequency = 0.0125F;
    m_dialog->updateDialog();
    EXPECT_EQ(control<QDoubleSpinBox>("frequency")->text(),
              QLocale().toString(0.0125, 'f', 4) + QLatin1String(" Hz"));
    EXPECT_EQ(control<QDial>("frequencyDial")->value(), 1000);
}

TEST_F(FunctionGenWindow, SwitchingAChannelSendsOneOrFiveFrames)
{
    const QPoint box(8, control<QCheckBox>("active")->height() / 2);
    QTest::mouseClick(control<QCheckBox>("active"), Qt::LeftButton, {}, box);
    EXPECT_FALSE(channel().active);
    EXPECT_EQ(m_outlet.kinds(), "+4 ");
    QTest::mouseClick(control<QCheckBox>("active"), Qt::LeftButton, {}, box);
    EXPECT_TRUE(channel().active);
    EXPECT_EQ(m_outlet.kinds(), "+3 +0 +1 +2 +4 ");
    EXPECT_TRUE(m_project.isEdited());
    EXPECT_EQ(m_outlet.destination, "All Interfaces");
}

TEST_F(FunctionGenWindow, SettingsGoToTheSelectedChannel)
{
    tabs()->setCurrentIndex(2);
    choose(control<QComboBox>("waveform"), 3);
    EXPECT_EQ(channel(2).waveForm, 3);
    EXPECT_EQ(channel(0).waveForm, 0);
    ASSERT_EQ(m_outlet.frames.size(), 3U);
    EXPECT_EQ(m_outlet.frames.back(), "1004:070f02020a020311");
}

TEST_F(FunctionGenWindow, ConfigurationOfAnIdleChannelStaysHere)
{
    channel().active = false;
    m_dialog->updateDialog();
    choose(control<QComboBox>("waveform"), 1);
    choose(control<QComboBox>("dataType"), 1);
    type(control<QSpinBox>("separation"), "50");
    EXPECT_EQ(channel().waveForm, 1);
    EXPECT_EQ(channel().dataType, 3);
    EXPECT_EQ(channel().separation, 50);
    EXPECT_EQ(m_outlet.kinds(), "");
    type(control<QSpinBox>("canId"), "1500");
    type(control<QDoubleSpinBox>("frequency"), "2");
    type(control<QDoubleSpinBox>("amplitude"), "3");
    type(control<QDoubleSpinBox>("offset"), "4");
    EXPECT_EQ(m_outlet.kinds(), "+3 +0 +1 +2 ");
}

TEST_F(FunctionGenWindow, ActiveChannelGetsEverySetting)
{
    choose(control<QComboBox>("dataType"), 2);
    EXPECT_EQ(m_outlet.kinds(), "+4 +4 ");
    type(control<QSpinBox>("separation"), "50");
    EXPECT_EQ(m_outlet.kinds(), "+4 ");
    type(control<QSpinBox>("canId"), "1500");
    EXPECT_EQ(channel().canId, 1500U);
    EXPECT_EQ(m_outlet.frames.size(), 2U) << "typed digits are not sent one by one";
    EXPECT_EQ(m_outlet.kinds(), "+3 +4 ");
    type(control<QDoubleSpinBox>("frequency"), "2.5");
    EXPECT_EQ(m_outlet.frames.front(), "1000:0702000540200000");
    EXPECT_EQ(m_outlet.kinds(), "+0 +4 ");
    EXPECT_EQ(channel().frequency, 2.5F);
    EXPECT_EQ(control<QDial>("frequencyDial")->value(), 250);
    type(control<QDoubleSpinBox>("amplitude"), "5");
    EXPECT_EQ(m_outlet.kinds(), "+1 +4 ");
    EXPECT_EQ(channel().amplitude, 5.0F);
    type(control<QDoubleSpinBox>("offset"), "-5");
    EXPECT_EQ(m_outlet.kinds(), "+2 +4 ");
    EXPECT_EQ(channel().offset, -5.0F);
}

TEST_F(FunctionGenWindow, DialsAreThousandthsOfTheirRange)
{
    control<QDial>("frequencyDial")->setFocus();
    QTest::keyClick(control<QDial>("frequencyDial"), Qt::Key_End);
    EXPECT_FLOAT_EQ(channel().frequency, 10.0F);
    EXPECT_EQ(m_outlet.kinds(), "+0 +4 ");
    EXPECT_EQ(control<QDoubleSpinBox>("frequency")->value(), 10.0);
    QTest::keyClick(control<QDial>("amplitudeDial"), Qt::Key_Home);
    EXPECT_EQ(channel().amplitude, 0.0F);
    EXPECT_EQ(m_outlet.kinds(), "+1 +4 ");
    QTest::keyClick(control<QDial>("offsetDial"), Qt::Key_Home);
    EXPECT_FLOAT_EQ(channel().offset, -10.0F);
    EXPECT_EQ(m_outlet.kinds(), "+2 +4 ");
}

TEST_F(FunctionGenWindow, DialCanBeTurnedStepByStepThroughEveryRange)
{
    auto* dial = control<QDial>("frequencyDial");
    dial->setFocus();
    for (const std::int32_t exponent : {-2, -1, 0, 1, 2}) {
        channel().frequencyFactor = exponent;
        channel().frequency = 0.0F;
        m_dialog->updateDialog();
        QTest::keyClick(dial, Qt::Key_Home);
        for (int position = 2; position <= 300; ++position) {
            QTest::keyClick(dial, Qt::Key_Up);
            ASSERT_EQ(dial->value(), position) << exponent;
        }
    }
}

TEST_F(FunctionGenWindow, EveryDialHasItsOwnRange)
{
    channel().frequencyFactor = 2;
    channel().amplitudeFactor = 3;
    channel().offsetFactor = 4;
    m_dialog->updateDialog();
    for (const char* dial : {"frequencyDial", "amplitudeDial", "offsetDial"}) {
        QTest::keyClick(control<QDial>(dial), Qt::Key_End);
    }
    EXPECT_FLOAT_EQ(channel().frequency, 100.0F);
    EXPECT_FLOAT_EQ(channel().amplitude, 1000.0F);
    EXPECT_FLOAT_EQ(channel().offset, 10000.0F);
}

TEST_F(FunctionGenWindow, FrequencyHasNoRangeAboveItsLast)
{
    channel().frequencyFactor = 9; // from a foreign file
    m_dialog->updateDialog();
    QTest::keyClick(control<QDial>("frequencyDial"), Qt::Key_End);
    EXPECT_FLOAT_EQ(channel().frequency, 100.0F);
    EXPECT_EQ(control<QComboBox>("frequencyRange")->currentText(), QLatin1String("0.0-100.0"));
}

TEST_F(FunctionGenWindow, NumberThatIsBeingTypedBelongsToThePageThatIsLeft)
{
    control<QSpinBox>("canId")->setFocus();
    control<QSpinBox>("canId")->selectAll();
    QTest::keyClicks(control<QSpinBox>("canId"), QStringLiteral("1700"));
    tabs()->setCurrentIndex(2);
    EXPECT_EQ(channel(0).canId, 1700U);
    EXPECT_EQ(channel(2).canId, 1230U);
}

TEST_F(FunctionGenWindow, HeaderCountsFramesBothWays)
{
    reply({1, 2, 3, 4}, 500);
    reply({1, 2, 3, 4}, 500);
    EXPECT_EQ(find<QLabel>("inputCounter")->text(), QLatin1String("0002"));
    choose(control<QComboBox>("waveform"), 1);
    type(control<QSpinBox>("canId"), "1500");
    EXPECT_EQ(find<QLabel>("outputCounter")->text(), QLatin1String("0003"));
}

TEST_F(FunctionGenWindow, RangesChangeWhatIsShownAndSendNothing)
{
    choose(control<QComboBox>("frequencyRange"), 1);
    choose(control<QComboBox>("amplitudeRange"), 2);
    choose(control<QComboBox>("offsetRange"), 1, Qt::Key_Up);
    EXPECT_EQ(channel().frequencyFactor, 2);
    EXPECT_EQ(channel().amplitudeFactor, 3);
    EXPECT_EQ(channel().offsetFactor, 0);
    EXPECT_EQ(channel().frequency, 1.0F);
    EXPECT_EQ(control<QDial>("frequencyDial")->value(), 10);
    EXPECT_EQ(control<QDoubleSpinBox>("frequency")->decimals(), 0);
    EXPECT_EQ(control<QDial>("amplitudeDial")->value(), 1);
    EXPECT_EQ(control<QDoubleSpinBox>("offset")->decimals(), 2);
    EXPECT_EQ(m_outlet.kinds(), "");
    EXPECT_TRUE(m_project.isEdited());
}

} // namespace
