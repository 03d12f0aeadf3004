#include "tests/gui/FunctionGenFixture.h"

namespace {

using gui::InputDialogs;
using gui::MessageBoxes;
using zul::test::FunctionGenWindow;

TEST_F(FunctionGenWindow, NodeSettingsAreStoredAndSendNothing)
{
    type(find<QSpinBox>("nodeId"), "12");
    type(find<QSpinBox>("baseId"), "3000");
    choose(find<QComboBox>("baudrate"), 1);
    EXPECT_EQ(m_object->generator().nodeId, 12);
    EXPECT_EQ(m_object->generator().nodeBaseId, 3000);
    EXPECT_EQ(m_object->generator().baudrate, 3);
    EXPECT_TRUE(m_outlet.frames.empty());
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(FunctionGenWindow, SweepAsksAllNodesAndFindsNone)
{
    MessageBoxes::setNextAnswer(QMessageBox::Ok);
    const int boxes = MessageBoxes::count();
    click("search");
    EXPECT_EQ(timer("searchTimer")->interval(), 10);
    EXPECT_TRUE(timer("searchTimer")->isSingleShot());
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_EQ(find<QStackedWidget>("searchStack")->currentWidget(),
              find<QProgressBar>("searchProgress"));
    sweep();
    ASSERT_EQ(m_outlet.frames.size(), 256U);
    EXPECT_EQ(m_outlet.frames.front(), "128:00006f00");
    EXPECT_EQ(m_outlet.frames.back(), "128:ff006f00");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(find<QStackedWidget>("searchStack")->currentWidget(), find<QPushButton>("search"));
    EXPECT_EQ(MessageBoxes::count(), boxes + 1);
    EXPECT_EQ(MessageBoxes::last().title, QLatin1String("ZUL Warning"));
    EXPECT_EQ(MessageBoxes::last().text, QLatin1String("No generators found !"));
    EXPECT_EQ(MessageBoxes::last().icon, QMessageBox::Warning);
    EXPECT_EQ(MessageBoxes::last().buttons,
              std::vector<QMessageBox::StandardButton>{QMessageBox::Ok});
}

TEST_F(FunctionGenWindow, ProgressFollowsTheSweep)
{
    click("search");
    for (int i = 1; i <= 3; ++i) {
        QMetaObject::invokeMethod(m_dialog, "slotTimeout");
        EXPECT_EQ(find<QProgressBar>("searchProgress")->value(), i);
    }
    EXPECT_TRUE(timer("searchTimer")->isActive());
}

TEST_F(FunctionGenWindow, FoundGeneratorsAreListed)
{
    const int boxes = MessageBoxes::count();
    click("search");
    reply({33, 4, 111, 0, 0, 0, 0x07, 0xD0});
    reply({44, 4, 111, 0, 0, 0, 0x01, 0x00});
    sweep();
    EXPECT_EQ(MessageBoxes::count(), boxes);
    auto* list = find<QListWidget>("nodes");
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(0)->text(), QLatin1String("Node 33 / Base 2000"));
    EXPECT_EQ(list->item(1)->text(), QLatin1String("Node 44 / Base 256"));
    EXPECT_FALSE(list->item(0)->icon().isNull());
    EXPECT_EQ(list->item(1)->data(256).toInt(), 44);
    EXPECT_EQ(list->item(1)->data(257).toInt(), 256);
    EXPECT_EQ(m_object->generator().nodeId, 33);
    EXPECT_EQ(find<QSpinBox>("nodeId")->value(), 33);
    EXPECT_EQ(find<QSpinBox>("baseId")->value(), 2000);
    m_outlet.frames.clear();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(1)).center());
    EXPECT_EQ(m_object->generator().nodeId, 44);
    EXPECT_EQ(m_object->generator().nodeBaseId, 256);
    EXPECT_EQ(find<QSpinBox>("nodeId")->value(), 44);
    EXPECT_EQ(find<QSpinBox>("baseId")->value(), 256);
    EXPECT_TRUE(m_outlet.frames.empty());
}

TEST_F(FunctionGenWindow, SameAnswerOutsideASweepStandsTwice)
{
    reply({33, 4, 111, 0, 0, 0, 0x07, 0xD0});
    reply({33, 4, 111, 0, 0, 0, 0x07, 0xD0});
    EXPECT_EQ(find<QListWidget>("nodes")->count(), 2);
    MessageBoxes::setNextAnswer(QMessageBox::Ok);
    click("search");
    EXPECT_EQ(find<QListWidget>("nodes")->count(), 0);
    sweep();
}

TEST_F(FunctionGenWindow, BaseIdentifierIsSetAfterAQuestion)
{
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    click("setBaseId");
    EXPECT_EQ(MessageBoxes::last().title, QLatin1String("ZUL Warning"));
    EXPECT_EQ(MessageBoxes::last().text,
              QLatin1String("Are you sure to change the CAN base id ?\n"));
    EXPECT_EQ(MessageBoxes::last().icon, QMessageBox::Warning);
    EXPECT_EQ(MessageBoxes::last().buttons,
              (std::vector<QMessageBox::StandardButton>{QMessageBox::Yes, QMessageBox::Cancel}));
    EXPECT_EQ(m_outlet.frames, (std::vector<std::string>{"128:07046e00000003e8"}));
    EXPECT_EQ(status(), "Waiting... #ff9650");
    EXPECT_EQ(buttons(), "off off off off ");
    EXPECT_EQ(timer("flashTimer")->interval(), 1000);
    EXPECT_TRUE(timer("flashTimer")->isSingleShot());
    reply({7, 0, 110, 0});
    EXPECT_EQ(status(), "OK #96ff96");
    EXPECT_EQ(buttons(), "on on on on ");
    runOut("flashTimer");
    EXPECT_EQ(status(), "OK #96ff96");
}

TEST_F(FunctionGenWindow, BaudrateAndStoreAskToo)
{
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    click("setBaudrate");
    EXPECT_EQ(MessageBoxes::last().text, QLatin1String("Are you sure to change the baudrate ?\n"));
    EXPECT_EQ(m_outlet.frames.back(), "128:070a0a0002");
    runOut("flashTimer");
    EXPECT_EQ(status(), "Timeout Error #ff5050");
    EXPECT_EQ(buttons(), "on on on on ");
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    click("flash");
    EXPECT_EQ(MessageBoxes::last().text,
              QLatin1String("Are you sure to store all data permanently ?\n"));
    EXPECT_EQ(m_outlet.frames.back(), "128:0700067b");
    reply({7, 0, 6, 1});
    EXPECT_EQ(status(), "Error #ff9696");
    EXPECT_EQ(buttons(), "on on on on ");
}

TEST_F(FunctionGenWindow, CancelledQuestionsSendNothing)
{
    for (const char* button : {"setBaseId", "setBaudrate", "flash"}) {
        MessageBoxes::setNextAnswer(QMessageBox::Cancel);
        click(button);
    }
    InputDialogs::setNextInteger(std::nullopt);
    click("setNodeId");
    EXPECT_TRUE(m_outlet.frames.empty());
    EXPECT_EQ(status(), "--- #b4b4b4");
    EXPECT_EQ(m_object->generator().nodeId, 7);
}

TEST_F(FunctionGenWindow, NodeIdIsAskedForAndCountsAtOnce)
{
    InputDialogs::setNextInteger(55);
    click("setNodeId");
    const InputDialogs::Question& question = InputDialogs::last();
    EXPECT_EQ(question.title, QLatin1String("ZUL"));
    EXPECT_EQ(question.text, QLatin1String("Enter new node id:"));
    EXPECT_EQ(question.value, 7);
    EXPECT_EQ(question.minimum, 1);
    EXPECT_EQ(question.maximum, 100);
    EXPECT_EQ(question.step, 1);
    EXPECT_EQ(m_outlet.frames, (std::vector<std::string>{"128:070a0b37"}));
    EXPECT_EQ(m_object->generator().nodeId, 55);
    EXPECT_EQ(find<QSpinBox>("nodeId")->value(), 55);
    EXPECT_EQ(status(), "Waiting... #ff9650");
    EXPECT_TRUE(timer("flashTimer")->isActive());
}

TEST_F(FunctionGenWindow, HeaderIsWiredBothWays)
{
    auto* header = m_dialog->findChild<WidgetHeader*>();
    emit header->signalOutputInterface(QStringLiteral("CAN 2"));
    emit header->signalInputInterface(QStringLiteral("CAN 3"));
    EXPECT_EQ(m_object->settings().outputInterface, QLatin1String("CAN 2"));
    EXPECT_EQ(m_object->settings().inputInterface, QLatin1String("CAN 3"));
    reply({33, 4, 111, 0, 0, 0, 0, 1}); // from CAN 1
    EXPECT_EQ(find<QListWidget>("nodes")->count(), 0);
    choose(control<QComboBox>("waveform"), 1);
    EXPECT_EQ(m_outlet.destination, "CAN 2");
    emit header->signalOutputOn(false);
    m_outlet.frames.clear();
    choose(control<QComboBox>("waveform"), 1);
    EXPECT_TRUE(m_outlet.frames.empty());
    EXPECT_FALSE(m_object->settings().outputOn);
    emit header->signalInputOn(false);
    EXPECT_FALSE(m_object->settings().inputOn);
    emit header->signalFilterOn(true);
    EXPECT_TRUE(m_object->filter().isOn());
    emit header->signalFilterSetup();
    EXPECT_TRUE(m_dialog->findChild<gui::DialogFilter*>()->isVisible());
    emit header->signalSetup();
}

TEST_F(FunctionGenWindow, BothHalvesOfTheHeaderWork)
{
    for (const char* name :
         {"inputSwitch", "inputSelect", "filterSwitch", "outputSwitch", "outputSelect"}) {
        EXPECT_TRUE(find<QWidget>(name)->isEnabled()) << name;
    }
}

TEST_F(FunctionGenWindow, ClosingInTheMiddleOfASweepGivesTheCursorBack)
{
    click("search");
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    delete m_dialog;
    m_dialog = nullptr;
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(FunctionGenWindow, ForcedCloseEndsASweepAndTheWait)
{
    MessageBoxes::setNextAnswer(QMessageBox::Yes);
    click("flash");
    click("search");
    m_dialog->forceClose();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(timer("searchTimer")->isActive());
    EXPECT_FALSE(timer("flashTimer")->isActive());
}

TEST_F(FunctionGenWindow, HalfTypedNodeNumbersDoNotCount)
{
    find<QSpinBox>("baseId")->setFocus();
    find<QSpinBox>("baseId")->selectAll();
    QTest::keyClicks(find<QSpinBox>("baseId"), QStringLiteral("30"));
    find<QSpinBox>("nodeId")->selectAll();
    EXPECT_EQ(m_object->generator().nodeBaseId, 1000);
    QTest::keyClicks(find<QSpinBox>("nodeId"), QStringLiteral("9"));
    EXPECT_EQ(m_object->generator().nodeId, 7);
}

TEST_F(FunctionGenWindow, WithoutItsObjectItDoesNothing)
{
    click("search");
    m_project.deleteObject(m_object->id());
    QMetaObject::invokeMethod(m_dialog, "slotTimeout");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    const int boxes = MessageBoxes::count();
    for (const char* button : {"search", "setNodeId", "setBaseId", "setBaudrate", "flash"}) {
        click(button);
    }
    EXPECT_EQ(MessageBoxes::count(), boxes);
    choose(control<QComboBox>("waveform"), 1);
    control<QDial>("offsetDial")->setValue(3);
    type(find<QSpinBox>("nodeId"), "12");
    reply({33, 4, 111, 0});
    m_dialog->updateDialog();
    EXPECT_TRUE(m_outlet.frames.empty());
    const gui::DialogFunctionGen orphan(nullptr, nullptr);
}

TEST_F(FunctionGenWindow, FitsOnASmallScreen)
{
    EXPECT_LE(m_dialog->minimumSizeHint().height(), 600);
    EXPECT_LE(m_dialog->minimumSizeHint().width(), 880);
}

} // namespace
