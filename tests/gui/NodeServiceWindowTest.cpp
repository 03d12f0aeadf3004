#include "core/SettingsStore.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/WidgetInterfaceSelect.h"
#include "gui/node/DialogNodeService.h"
#include "gui/node/WidgetNsArincDus.h"
#include "gui/node/WidgetNsArincIds.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "message/MessageStatus.h"
#include "profile/ProfileStore.h"
#include "project/ObjectNodeService.h"
#include "project/Project.h"
#include "tests/support/ProbeObjects.h"
#include "tests/support/TestHome.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using gui::QwtComboBox;
using zul::MessageCan;

/// An interface that keeps what it is to send.
class Outlet : public zul::test::ProbeInterface
{
public:
    void receive(MessageContainer& batch) override
    {
        ProbeInterface::receive(batch);
        batches.push_back(batch);
    }
    const MessageCan& frame(std::size_t batch) const
    {
        return *message_cast<MessageCan>(batches.at(batch).messages().at(0).get());
    }

    std::vector<MessageContainer> batches;
};

class NodeServiceWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object =
            dynamic_cast<ObjectNodeService*>(m_project.createObject(ObjectType::NodeService));
        m_object->addOutput(&m_outlet);
        m_dialog = new gui::DialogNodeService(m_object, nullptr);
        m_dialog->show();
        m_project.save(QString());
    }
    void TearDown() override { delete m_dialog; }

    QWidget* page() const
    {
        return m_dialog->findChild<QStackedWidget*>(QStringLiteral("pages"))->currentWidget();
    }
    /// A control of the page that is shown.
    template <typename Widget>
    Widget* find(const char* name) const
    {
        return page()->findChild<Widget*>(QLatin1String(name));
    }
    void click(const char* name) const { QTest::mouseClick(find<QWidget>(name), Qt::LeftButton); }
    /// Chooses the next item by the keyboard, `steps` times.
    static void moveDown(QComboBox* box, int steps)
    {
        for (int i = 0; i < steps; ++i) {
            QTest::keyClick(box, Qt::Key_Down);
        }
    }
    void chooseUpload() const
    {
        moveDown(m_dialog->findChild<QwtComboBox*>(QStringLiteral("services")), 1);
    }
    void deliver(std::uint32_t id, const std::vector<std::uint8_t>& bytes,
                 const char* source = "CAN 1") const
    {
        auto* frame = new MessageCan;
        frame->setId(id);
        frame->setByteCount(static_cast<std::uint32_t>(bytes.size()));
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            frame->msg()[static_cast<std::int32_t>(i)] = bytes[i];
        }
        MessageContainer batch;
        batch.setSrcDest(source);
        batch.addMessage(SmartPtr<Message>(frame));
        m_dialog->receive(batch);
    }
    std::string text(const char* field) const
    {
        return find<QLineEdit>(field)->text().toStdString();
    }
    /// Text and colour of the state.
    std::string status() const
    {
        const auto* label = find<QLabel>("status");
        return (label->text() + QLatin1Char(' ') +
                label->palette().color(label->backgroundRole()).name())
            .toStdString();
    }
    /// The label of a field of the page.
    std::string labelOf(const char* name) const
    {
        for (const QGroupBox* group : page()->findChildren<QGroupBox*>()) {
            const auto* form = qobject_cast<QFormLayout*>(group->layout());
            if (const QWidget* label = form->labelForField(find<QWidget>(name))) {
                return qobject_cast<const QLabel*>(label)->text().toStdString();
            }
        }
        return {};
    }
    /// Moves every field of the identifier, and returns what it must be then.
    std::uint32_t changeAddress() const
    {
        moveDown(find<QwtComboBox>("lcc"), 2);
        moveDown(find<QwtComboBox>("clientFid"), 20);
        clickLocalBit();
        moveDown(find<QwtComboBox>("serverFid"), 30);
        find<QSpinBox>("sid")->setFocus();
        find<QSpinBox>("sid")->selectAll();
        QTest::keyClicks(find<QSpinBox>("sid"), QStringLiteral("40"));
        moveDown(find<QwtComboBox>("rci"), 2);
        return 6U << 26 | 20U << 19 | 1U << 18 | 1U << 17 | 30U << 9 | 40U << 2 | 2U;
    }
    void clickLocalBit() const
    {
        auto* box = find<QCheckBox>("lcl");
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(5, box->height() / 2));
    }
    QTimer* timer() const
    {
        return page()->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    }
    /// Lets the page's clock run out at once.
    void runOut() const
    {
        QTimer* clock = timer();
        ASSERT_TRUE(clock->isActive());
        clock->setInterval(0);
        ASSERT_TRUE(QTest::qWaitFor([clock] { return !clock->isActive(); }));
        QApplication::processEvents();
        clock->setInterval(ServiceLink::timeoutMs);
    }
    static std::string hex(const MessageCan& frame)
    {
        return QByteArray(reinterpret_cast<const char*>(&frame.msg()[0]),
                          static_cast<int>(frame.byteCount()))
            .toHex(' ')
            .toStdString();
    }

    zul::test::TestHome m_home;
    Project m_project{{ObjectNodeService::typeInfo()}, m_home.file(QStringLiteral("default.zul"))};
    Outlet m_outlet;
    ObjectNodeService* m_object = nullptr;
    gui::DialogNodeService* m_dialog = nullptr;
};

constexpr std::uint32_t plainRequest = 4U << 26 | 1U << 18;
constexpr std::uint32_t plainAnswer = 4U << 26;

TEST_F(NodeServiceWindow, OpensOnTheIdentificationPageInItsSmallestSize)
{
    EXPECT_NE(qobject_cast<gui::WidgetNsArincIds*>(page()), nullptr);
    EXPECT_EQ(m_dialog->size(), m_dialog->minimumSizeHint());
    const auto* tabs = m_dialog->findChild<QTabWidget*>(QStringLiteral("protocols"));
    ASSERT_EQ(tabs->count(), 2);
    EXPECT_EQ(tabs->tabText(0), QLatin1String("ARINC 825"));
    EXPECT_EQ(tabs->tabText(1), QLatin1String("CANaerospace"));
    EXPECT_EQ(qobject_cast<QLabel*>(tabs->widget(1))->text(), QLatin1String("not yet implemented"));
    const auto* services = m_dialog->findChild<QwtComboBox*>(QStringLiteral("services"));
    ASSERT_EQ(services->count(), 2);
    EXPECT_EQ(services->itemText(0), QLatin1String("IDS Identification Service"));
    EXPECT_EQ(services->itemData(0).toInt(), 0);
    EXPECT_EQ(services->itemText(1), QLatin1String("DUS Data Upload Service"));
    EXPECT_EQ(services->itemData(1).toInt(), 3);
}

TEST_F(NodeServiceWindow, ServiceChoosesThePage)
{
    chooseUpload();
    EXPECT_NE(qobject_cast<gui::WidgetNsArincDus*>(page()), nullptr);
    QMetaObject::invokeMethod(m_dialog, "slotServiceSelect", Q_ARG(int, 0), Q_ARG(int, 7));
    EXPECT_EQ(qobject_cast<QLabel*>(page())->text(), QLatin1String("not yet implemented"));
    deliver(0, {}); // for nobody
    QMetaObject::invokeMethod(m_dialog, "slotServiceSelect", Q_ARG(int, 0), Q_ARG(int, 0));
    EXPECT_NE(qobject_cast<gui::WidgetNsArincIds*>(page()), nullptr);
    EXPECT_EQ(status(), "Idle #969696");
}

TEST_F(NodeServiceWindow, PageHasItsControls)
{
    std::vector<std::string> labels;
    const auto groups = page()->findChildren<QGroupBox*>();
    ASSERT_EQ(groups.size(), 2);
    EXPECT_EQ(groups[0]->title(), QLatin1String("Transmit"));
    EXPECT_EQ(groups[1]->title(), QLatin1String("Receive"));
    EXPECT_EQ(labelOf("lcc"), "LCC :");
    EXPECT_EQ(labelOf("clientFid"), "Client FID :");
    EXPECT_EQ(labelOf("lcl"), "LCL :");
    EXPECT_EQ(labelOf("serverFid"), "Server FID :");
    EXPECT_EQ(labelOf("sid"), "SID :");
    EXPECT_EQ(labelOf("rci"), "RCI :");
    EXPECT_EQ(labelOf("profileId"), "Profile ID :");
    EXPECT_EQ(labelOf("profileSubId"), "Profile Sub-ID :");
    EXPECT_EQ(labelOf("lruCode"), "LRU Code :");
    EXPECT_EQ(find<QCheckBox>("lcl")->text(), QLatin1String("LCL Bit"));
    EXPECT_EQ(find<QPushButton>("send")->text(), QLatin1String("Send"));
    EXPECT_EQ(find<QSpinBox>("sid")->minimum(), 0);
    EXPECT_EQ(find<QSpinBox>("sid")->maximum(), 511);
    const auto items = [&](const char* name) {
        std::string all;
        const auto* box = find<QwtComboBox>(name);
        for (int i = 0; i < box->count(); ++i) {
            all += box->itemText(i).toStdString() + "=" + std::to_string(box->itemData(i).toInt()) +
                   " ";
        }
        return all;
    };
    EXPECT_EQ(items("lcc"), "NSC=4 UDC=5 TMC=6 ");
    EXPECT_EQ(items("rci"), "A=0 B=1 C=2 D=3 ");
    for (const char* name : {"clientFid", "serverFid"}) {
        const auto* box = find<QwtComboBox>(name);
        ASSERT_EQ(box->count(), 128);
        for (const auto& [code, label] : ProfileStore::instance().currentFidTable()) {
            const int row = static_cast<int>(code);
            EXPECT_EQ(box->itemText(row), QStringLiteral("%1 %2").arg(code).arg(label));
            EXPECT_EQ(box->itemData(row).toUInt(), code);
        }
    }
    EXPECT_EQ(status(), "Idle #969696");
}

TEST_F(NodeServiceWindow, ControlsComposeTheIdentifier)
{
    click("send");
    EXPECT_EQ(m_outlet.frame(0).id(), plainRequest);
    const std::uint32_t changed = changeAddress();
    click("send");
    EXPECT_EQ(m_outlet.frame(1).id(), changed);
    EXPECT_EQ(hex(m_outlet.frame(1)), "00 00");
    clickLocalBit();
    click("send");
    EXPECT_EQ(m_outlet.frame(2).id(), changed & ~(1U << 17));
}

TEST_F(NodeServiceWindow, UploadHasTheSameControls)
{
    chooseUpload();
    const std::uint32_t changed = changeAddress();
    click("send");
    EXPECT_EQ(m_outlet.frame(0).id(), changed);
    EXPECT_EQ(labelOf("lcc"), "LCC :");
    EXPECT_EQ(find<QPushButton>("send")->text(), QLatin1String("Send"));
    EXPECT_EQ(page()->findChildren<QGroupBox*>()[0]->title(), QLatin1String("Transmit"));
    EXPECT_EQ(page()->findChildren<QGroupBox*>()[1]->title(), QLatin1String("Receive"));
    std::vector<std::string> labels;
    for (const QLabel* label : page()->findChildren<QLabel*>()) {
        labels.push_back(label->text().toStdString());
    }
    EXPECT_EQ(std::count(labels.begin(), labels.end(), "File :"), 1);
}

TEST_F(NodeServiceWindow, FunctionCodesAreThoseOfTheChosenVersion)
{
    const QString before = find<QwtComboBox>("serverFid")->itemText(21);
    const QString key = QStringLiteral("ArincProfileVersion");
    const int version = SettingsStore::instance().integer(key, 0);
    SettingsStore::instance().setInteger(key, version == 0 ? 1 : 0);
    delete m_dialog;
    m_dialog = new gui::DialogNodeService(m_object, nullptr);
    EXPECT_NE(find<QwtComboBox>("serverFid")->itemText(21), before);
    SettingsStore::instance().setInteger(key, version);
}

TEST_F(NodeServiceWindow, IdentificationIsShown)
{
    click("send");
    EXPECT_EQ(status(), "Waiting on response ... #ffff64");
    EXPECT_TRUE(timer()->isActive());
    EXPECT_TRUE(timer()->isSingleShot());
    EXPECT_EQ(timer()->interval(), 1000);
    deliver(plainAnswer, {0, 0, 0x12, 0x34, 0xFF, 0xFF, 0, 9});
    EXPECT_EQ(status(), "Response received #64ff64");
    EXPECT_FALSE(timer()->isActive());
    EXPECT_EQ(text("profileId"), "4660");
    EXPECT_EQ(text("profileSubId"), "65535");
    EXPECT_EQ(text("lruCode"), "9");
}

TEST_F(NodeServiceWindow, SilenceIsATimeoutAndALateAnswerStillCounts)
{
    click("send");
    runOut();
    EXPECT_EQ(status(), "Timeout #ff6464");
    deliver(plainAnswer, {});
    EXPECT_EQ(status(), "Response received #64ff64");
}

TEST_F(NodeServiceWindow, AnswersOfOtherInterfacesAndOfAHiddenPageDoNotCount)
{
    auto* select = m_dialog->findChild<gui::WidgetInterfaceSelect*>();
    emit select->signalChanged(QStringLiteral("CAN 2"));
    click("send");
    EXPECT_EQ(m_outlet.batches[0].srcDest(), "CAN 2");
    deliver(plainAnswer, {}, "CAN 1");
    EXPECT_EQ(status(), "Waiting on response ... #ffff64");
    chooseUpload();
    deliver(plainAnswer, {}, "CAN 2");
    QMetaObject::invokeMethod(m_dialog, "slotServiceSelect", Q_ARG(int, 0), Q_ARG(int, 0));
    EXPECT_EQ(status(), "Waiting on response ... #ffff64");
    deliver(plainAnswer, {}, "CAN 2");
    EXPECT_EQ(status(), "Response received #64ff64");
}

TEST_F(NodeServiceWindow, InterfaceIsKeptInTheProject)
{
    EXPECT_FALSE(m_project.isEdited());
    auto* select = m_dialog->findChild<gui::WidgetInterfaceSelect*>();
    emit select->signalChanged(QStringLiteral("CAN 2"));
    EXPECT_EQ(m_object->settings().inputInterface, QLatin1String("CAN 2"));
    EXPECT_EQ(m_object->settings().outputInterface, QLatin1String("CAN 2"));
    EXPECT_TRUE(m_project.isEdited());
    delete m_dialog;
    m_dialog = new gui::DialogNodeService(m_object, nullptr);
    EXPECT_EQ(m_dialog->findChild<gui::WidgetInterfaceSelect*>()->interface(),
              QLatin1String("CAN 2"));
    MessageContainer batch;
    m_dialog->sendToNode(batch);
    EXPECT_EQ(m_outlet.batches.back().srcDest(), "CAN 2");
}

TEST_F(NodeServiceWindow, UploadPageHasItsControls)
{
    chooseUpload();
    EXPECT_EQ(labelOf("destinationId"), "Destination Id");
    EXPECT_EQ(labelOf("progress"), "Progress :");
    EXPECT_EQ(labelOf("responseCode"), "Response Code :");
    EXPECT_EQ(labelOf("messageSeparation"), "Message Sep. :");
    EXPECT_EQ(labelOf("blockSize"), "Block Size :");
    EXPECT_EQ(labelOf("blockSeparation"), "Block Sep. :");
    EXPECT_NE(find<QWidget>("lcc"), nullptr);
    for (const char* name :
         {"file", "size", "responseCode", "messageSeparation", "blockSize", "blockSeparation"}) {
        EXPECT_TRUE(find<QLineEdit>(name)->isReadOnly()) << name;
    }
    EXPECT_EQ(find<QSpinBox>("destinationId")->minimum(), 0);
    EXPECT_EQ(find<QSpinBox>("destinationId")->maximum(), 65535);
    EXPECT_EQ(status(), "Idle #969696");
}

TEST_F(NodeServiceWindow, UploadGoesThroughItsStates)
{
    chooseUpload();
    m_home.write(QStringLiteral("file.bin"), QByteArray(76, 'x')); // 11 frames with the checksum
    gui::FileDialogs::setNextFileName(m_home.file(QStringLiteral("file.bin")));
    click("chooseFile");
    EXPECT_EQ(gui::FileDialogs::lastTitle(), QLatin1String("Open Upload File"));
    EXPECT_EQ(gui::FileDialogs::lastFilter(), QLatin1String("All Files (*.*)"));
    EXPECT_EQ(find<QLineEdit>("file")->text(), m_home.file(QStringLiteral("file.bin")));
    EXPECT_EQ(text("size"), "76 Bytes");
    find<QSpinBox>("destinationId")->setValue(0x1234);
    click("send");
    EXPECT_EQ(status(), "Waiting on response ... #ffff64");
    EXPECT_EQ(hex(m_outlet.frame(0)), "00 02 12 34 00 00 00 50");
    EXPECT_EQ(timer()->interval(), 1000);
    deliver(plainAnswer, {0, 2, 7, 1, 0, 32, 1, 0});
    EXPECT_EQ(status(), "Waiting on ACK ... #ffff64");
    EXPECT_EQ(text("responseCode"), "7");
    EXPECT_EQ(text("messageSeparation"), "1");
    EXPECT_EQ(text("blockSize"), "32");
    EXPECT_EQ(text("blockSeparation"), "256");
    EXPECT_TRUE(timer()->isActive());
    deliver(plainAnswer, {1, 2, 3});
    EXPECT_EQ(status(), "Uploading #64ff64");
    EXPECT_FALSE(timer()->isActive());
    ASSERT_EQ(m_outlet.batches.size(), 3U);
    EXPECT_EQ(m_outlet.batches[2].size(), 14U);
    auto* report = new zul::MessageStatus;
    report->entries = {{"CPM", "5", ""}};
    MessageContainer batch;
    batch.addMessage(SmartPtr<Message>(report));
    m_dialog->receive(batch);
    EXPECT_EQ(find<QProgressBar>("progress")->value(), 54);
    deliver(plainAnswer, {1, 2, 3});
    EXPECT_EQ(status(), "Finished ... #64ff64");
    EXPECT_EQ(find<QProgressBar>("progress")->value(), 100);
}

TEST_F(NodeServiceWindow, UploadTimesOut)
{
    chooseUpload();
    click("send");
    runOut();
    EXPECT_EQ(status(), "Timeout #ff6464");
}

TEST_F(NodeServiceWindow, CancelledFileChooserChangesNothing)
{
    chooseUpload();
    gui::FileDialogs::setNextFileName(QString());
    click("chooseFile");
    EXPECT_EQ(text("file"), "");
    EXPECT_EQ(text("size"), "");
}

TEST_F(NodeServiceWindow, WindowThatGoesBehindTheFileChooserDoesNoHarm)
{
    chooseUpload();
    bool hasOpened = false;
    QTimer::singleShot(0, m_dialog, [this, &hasOpened] {
        hasOpened = QApplication::activeModalWidget() != nullptr;
        delete m_dialog;
        m_dialog = nullptr;
    });
    click("chooseFile");
    EXPECT_TRUE(hasOpened);
    EXPECT_EQ(m_dialog, nullptr);
}

TEST_F(NodeServiceWindow, WithoutItsObjectItDoesNothing)
{
    m_project.deleteObject(m_object->id());
    click("send");
    deliver(plainAnswer, {});
    EXPECT_TRUE(m_outlet.batches.empty());
    EXPECT_EQ(status(), "Waiting on response ... #ffff64");
    auto* select = m_dialog->findChild<gui::WidgetInterfaceSelect*>();
    emit select->signalChanged(QStringLiteral("CAN 2"));
    m_dialog->updateDialog();
    gui::DialogNodeService orphan(nullptr, nullptr);
    EXPECT_EQ(orphan.findChild<gui::WidgetInterfaceSelect*>()->interface(), allInterfacesName());
}

TEST_F(NodeServiceWindow, FitsOnASmallScreen)
{
    chooseUpload();
    EXPECT_LE(m_dialog->minimumSizeHint().height(), 640);
    // The font here is wider than on a screen.
    EXPECT_LE(m_dialog->minimumSizeHint().width(), 800);
}

} // namespace
