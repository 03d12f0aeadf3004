#include "comm/BatchListeners.h"
#include "comm/CanInterface.h"
#include "gui/traffic/Widget825Raw.h"
#include "gui/traffic/WidgetCanAs.h"
#include "gui/traffic/WidgetTransmitCan.h"
#include "tests/gui/TransmitFixture.h"
#include "tests/support/FixtureModules.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QSlider>
#include <QStackedWidget>

// Frames composed by hand in the three editors, as another interface of the virtual bus gets them.

namespace {

using zul::MessageCan;
using zul::test::choose;
using zul::test::type;

const auto* const modules = testing::AddGlobalTestEnvironment(
    new zul::test::FixtureModuleEnvironment({}, {CAN_VIRTUAL_MODULE}));

/// What is done to the value page of a data type, and the value bytes that come of it.
struct ValueEntry
{
    int dataType;
    std::vector<const char*> texts; ///< of the page's lines, from the left
    std::vector<int> bits;          ///< boxes that are checked
    const char* value;              ///< bytes from 4 on, in hexadecimal
};

const std::vector<ValueEntry> valueEntries{
    {0, {}, {}, ""},
    {1, {}, {}, ""},
    {2, {"-10", "10", "2.5"}, {}, "40200000"},
    {3, {"-2"}, {}, "fffffffe"},
    {4, {"4294967295"}, {}, "ffffffff"},
    {5, {}, {31, 0, 8}, "80000101"},
    {6, {"-3"}, {}, "fffd"},
    {7, {"0x10"}, {}, "0010"},
    {8, {}, {31, 16}, "8001"},
    {9, {"-4"}, {}, "fc"},
    {10, {"200"}, {}, "c8"},
    {11, {}, {24, 30}, "41"},
    {12, {"1", "-1"}, {}, "0001ffff"},
    {13, {"258", "65535"}, {}, "0102ffff"},
    {14, {}, {16, 15}, "00018000"},
    {15, {"1", "-2", "3", "-4"}, {}, "01fe03fc"},
    {16, {"1", "2", "253", "254"}, {}, "0102fdfe"},
    {17, {}, {24, 17, 10, 3}, "01020408"},
    {18, {"-1", "127"}, {}, "ff7f"},
    {19, {"255", "1"}, {}, "ff01"},
    {20, {}, {24, 16}, "0101"},
    {21, {"0x1234"}, {}, "00001234"},
    {22, {"77"}, {}, "0000004d"},
    {23, {"A"}, {}, "41"},
    {24, {"AB"}, {}, "4142"},
    {25, {"ABC"}, {}, "41424320"},
    {26, {"1", "-1", "2"}, {}, "01ff02"},
    {27, {"1", "2", "255"}, {}, "0102ff"},
    {28, {}, {31, 8}, "800001"},
    {29, {"XYZ"}, {}, "58595a"},
};

class TransmitBus : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        connectInterface("Sender");
        connectInterface("Hearer");
        comm::BatchListeners::instance().add([this](MessageContainer& batch) {
            for (const auto& message : batch.messages()) {
                const auto* frame = message_cast<MessageCan>(message.get());
                if (batch.srcDest() == "Hearer" && frame != nullptr) {
                    m_heard.push_back(*frame);
                }
            }
        });
    }
    void TearDown() override
    {
        comm::BatchListeners::instance().clear();
        delete m_dialog;
        for (comm::CanInterface* interface : m_interfaces) {
            interface->disconnect();
            interface->selectDevice({}); // frees the device, as the choice of another one does
        }
    }

    void connectInterface(const char* name)
    {
        auto* interface =
            dynamic_cast<comm::CanInterface*>(m_project.createObject(ObjectType::CanInterface));
        ASSERT_TRUE(interface->selectDevice("libCanVirtual"));
        interface->device()->setProperty("InterfaceName", name);
        interface->device()->setProperty("BusName", "Transmit bus test");
        interface->setName(QLatin1String(name));
        m_interfaces.push_back(interface);
        ASSERT_TRUE(interface->connect());
    }

    /// A window of that display mode with one fresh message; returns its editor.
    gui::MessageEditor* open(int displayMode)
    {
        auto* object = dynamic_cast<ObjectTransmit*>(m_project.createObject(ObjectType::Transmit));
        object->settings().displayMode = displayMode;
        object->settings().outputInterface = QStringLiteral("Sender");
        m_dialog = new gui::DialogTransmit(object, nullptr);
        QTest::mouseClick(m_dialog->findChild<QWidget*>(QStringLiteral("add")), Qt::LeftButton);
        m_table = m_dialog->findChild<gui::TransmitTable*>(QStringLiteral("transmitTable"));
        return m_table->editor(0);
    }

    /// Sends the message by its button, and waits until the other interface has it.
    MessageCan sent()
    {
        m_heard.clear();
        auto* cell = m_table->cellWidget(0, gui::TransmitTable::TransmitColumn);
        QTest::mouseClick(cell->findChild<QPushButton*>(), Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([this] {
            m_project.poll();
            return !m_heard.empty();
        }));
        return m_heard.empty() ? MessageCan() : m_heard.front();
    }

    static QByteArray payload(const MessageCan& frame)
    {
        QByteArray bytes;
        for (int i = 0; i < static_cast<int>(frame.byteCount()); ++i) {
            bytes.append(static_cast<char>(frame.msg()[i]));
        }
        return bytes.toHex();
    }

    static QList<QLineEdit*> cells(const gui::MessageEditor& editor)
    {
        QList<QLineEdit*> found;
        for (QLineEdit* line : editor.findChildren<QLineEdit*>()) {
            if (line->toolTip() == QStringLiteral("Message Payload")) {
                found.append(line);
            }
        }
        return found;
    }

    /// Sets all value bytes to 0.
    static void reset(const gui::MessageEditor& editor)
    {
        for (QPushButton* button : editor.findChildren<QPushButton*>()) {
            if (button->text() == QStringLiteral("Reset all")) {
                button->click();
                return;
            }
        }
        FAIL() << "no button";
    }

    static void enter(const gui::MessageEditor& editor, const ValueEntry& entry)
    {
        choose(editor.findChild<QComboBox*>(QStringLiteral("dataType")), entry.dataType);
        const auto* pages = editor.findChild<QStackedWidget*>(QStringLiteral("value"));
        QList<QLineEdit*> lines = pages->currentWidget()->findChildren<QLineEdit*>();
        if (entry.dataType == 2) { // smallest, largest and actual value
            lines = {pages->findChild<QLineEdit*>(QStringLiteral("minimum")),
                     pages->findChild<QLineEdit*>(QStringLiteral("maximum")),
                     pages->findChild<QLineEdit*>(QStringLiteral("actual"))};
        }
        for (std::size_t i = 0; i < entry.texts.size(); ++i) {
            QLineEdit* line = lines.at(static_cast<int>(i));
            ASSERT_NE(line, nullptr);
            type(line, entry.texts[i]);
            QTest::keyClick(line, Qt::Key_Return);
        }
        const auto* group = editor.findChild<QButtonGroup*>();
        for (const int bit : entry.bits) {
            QTest::keyClick(group->button(bit), Qt::Key_Space);
        }
    }

    zul::test::TestHome m_home;
    Project m_project{{comm::CanInterface::typeInfo(), ObjectTransmit::typeInfo()},
                      m_home.file(QStringLiteral("default.zul"))};
    std::vector<comm::CanInterface*> m_interfaces;
    std::vector<MessageCan> m_heard;
    QPointer<gui::DialogTransmit> m_dialog;
    gui::TransmitTable* m_table = nullptr;
};

TEST_F(TransmitBus, FrameOfTheCanEditorArrivesByteForByte)
{
    gui::MessageEditor* editor = open(0);
    choose(editor->findChild<QComboBox*>(QStringLiteral("mode")), 1);
    type(editor->findChild<QSpinBox*>(QStringLiteral("canId")), "0x1ABCDEF0");
    auto* byteCount = editor->findChild<QSpinBox*>(QStringLiteral("byteCount"));
    type(byteCount, "8");
    const QList<QLineEdit*> bytes = cells(*editor);
    for (int i = 0; i < 8; ++i) {
        type(bytes.at(i), QByteArray::number(240 + i).constData());
    }
    const MessageCan frame = sent();
    EXPECT_EQ(frame.id(), 0x1ABCDEF0U);
    EXPECT_EQ(frame.mode(), MessageCan::EMsgMode::Extended);
    EXPECT_EQ(frame.frameType(), MessageCan::EFrameType::Data);
    EXPECT_EQ(payload(frame), QByteArray("f0f1f2f3f4f5f6f7"));
}

TEST_F(TransmitBus, FdFrameOf64BytesArrivesByteForByte)
{
    gui::MessageEditor* editor = open(0);
    choose(editor->findChild<QComboBox*>(QStringLiteral("mode")), 4);
    type(editor->findChild<QSpinBox*>(QStringLiteral("canId")), "291");
    type(editor->findChild<QSpinBox*>(QStringLiteral("byteCount")), "64");
    const QList<QLineEdit*> bytes = cells(*editor);
    QByteArray expected;
    for (int i = 0; i < 64; ++i) {
        type(bytes.at(i), QByteArray::number(255 - i).constData());
        expected.append(static_cast<char>(255 - i));
    }
    const MessageCan frame = sent();
    EXPECT_EQ(frame.id(), 291U);
    EXPECT_EQ(static_cast<int>(frame.mode()), 4);
    EXPECT_EQ(payload(frame), expected.toHex());
}

TEST_F(TransmitBus, EveryDataTypeOfTheCanAerospaceEditorArrivesByteForByte)
{
    gui::MessageEditor* editor = open(3);
    type(editor->findChild<QSpinBox*>(QStringLiteral("canId")), "1500");
    type(editor->findChild<QSpinBox*>(QStringLiteral("nodeId")), "17");
    type(editor->findChild<QSpinBox*>(QStringLiteral("messageId")), "0xFE");
    for (const ValueEntry& entry : valueEntries) {
        SCOPED_TRACE(entry.dataType);
        reset(*editor);
        enter(*editor, entry);
        const MessageCan frame = sent();
        EXPECT_EQ(frame.id(), 1500U);
        EXPECT_EQ(frame.mode(), MessageCan::EMsgMode::Standard);
        const QByteArray header("11" + QByteArray::number(entry.dataType + 0x100, 16).mid(1) +
                                "00fe");
        EXPECT_EQ(payload(frame), header + entry.value);
    }
}

TEST_F(TransmitBus, FrameOfTheArincEditorArrivesByteForByte)
{
    gui::MessageEditor* editor = open(4);
    choose(editor->findChild<QComboBox*>(QStringLiteral("lcc")), 2);
    type(editor->findChild<QSpinBox*>(QStringLiteral("Src FID")), "100");
    type(editor->findChild<QSpinBox*>(QStringLiteral("DOC")), "900");
    QTest::keyClick(editor->findChild<QCheckBox*>(QStringLiteral("LCL")), Qt::Key_Space);
    type(editor->findChild<QSpinBox*>(QStringLiteral("byteCount")), "4");
    const QList<QLineEdit*> bytes = cells(*editor);
    for (int i = 0; i < 4; ++i) {
        type(bytes.at(i), QByteArray::number(i + 1).constData());
    }
    const MessageCan frame = sent();
    EXPECT_EQ(frame.id(), 2U << 26U | 100U << 19U | 1U << 17U | 900U << 2U);
    EXPECT_EQ(frame.mode(), MessageCan::EMsgMode::Extended);
    EXPECT_EQ(payload(frame), QByteArray("01020304"));
}

} // namespace
