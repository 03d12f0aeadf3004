#include "core/SettingsStore.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/frame/DialogFilter.h"
#include "gui/frame/MessageBoxes.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/frame/WidgetInterfaceSelect.h"
#include "gui/traffic/DialogTrace.h"
#include "gui/traffic/TraceView.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectTrace.h"
#include "project/Project.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

#include <cstdio>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using gui::MessageBoxes;
using zul::MessageCan;

// 21 November 2026, 18:35:09.123 UTC.
constexpr double startTime = 1795286109.123;
const QString traceName = QStringLiteral("zultrace_20261121_183509_123");
const QString stoppedStatus =
    QStringLiteral("<b><font color=\"#666666\"> Trace Stopped</font></b>");

/// A batch of frames with these identifiers, whose only byte is 0x0B.
MessageContainer batchOf(const std::vector<std::uint32_t>& ids, const char* source = "Nose",
                         MessageCan::EFrameType type = MessageCan::EFrameType::Data)
{
    MessageContainer batch;
    batch.setSrcDest(source);
    for (const std::uint32_t id : ids) {
        auto* frame = new MessageCan;
        frame->setId(id);
        frame->setByteCount(1);
        frame->setFrameType(type);
        frame->setTimeStamp(1.5);
        frame->msg()[0] = 0x0B;
        batch.addMessage(SmartPtr<Message>(frame));
    }
    return batch;
}

class TraceWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        SettingsStore::instance().reset();
        m_directory = QDir(m_home.path()).absoluteFilePath(QStringLiteral("flights"));
        QDir().mkpath(m_directory);
        setPath(m_directory);
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object = dynamic_cast<ObjectTrace*>(m_project.createObject(ObjectType::Trace));
        m_dialog = new gui::DialogTrace(m_object, nullptr);
        m_project.save(QString());
    }
    void TearDown() override
    {
        delete m_dialog;
        SettingsStore::instance().reset();
    }
    static void setPath(const QString& path)
    {
        SettingsStore::instance().setString(QStringLiteral("TracePath"), path);
    }
    template <typename Widget>
    Widget* find(const char* name) const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(name));
    }
    void feed(MessageContainer batch) { m_dialog->receive(batch); }
    void click(const char* name) { QTest::mouseClick(find<QWidget>(name), Qt::LeftButton); }
    QStringList lines() const
    {
        const QString text = find<QPlainTextEdit>("traceView")->toPlainText();
        return text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n'));
    }
    QString status() const { return find<QLabel>("traceStatus")->text(); }
    QByteArray file(const char* suffix) const
    {
        QFile opened(m_directory + QLatin1Char('/') + traceName + QLatin1String(suffix));
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }
    QString counted() const { return find<QLabel>("inputCounter")->text(); }
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

    zul::test::TestHome m_home;
    QString m_directory;
    zul::test::SettableClock m_clock{startTime};
    Project m_project{{ObjectTrace::typeInfo()}, m_home.file(QStringLiteral("default.zul"))};
    ObjectTrace* m_object = nullptr;
    QPointer<gui::DialogTrace> m_dialog;
};

TEST_F(TraceWindow, HasItsControls)
{
    EXPECT_EQ(m_dialog->minimumWidth(), 350);
    EXPECT_EQ(m_dialog->size(), QSize(550, 300));
    EXPECT_EQ(m_dialog->sizeHint(), QSize(550, 300));
    const auto* view = find<QPlainTextEdit>("traceView");
    EXPECT_TRUE(view->isReadOnly());
    EXPECT_FALSE(view->isUndoRedoEnabled());
    EXPECT_EQ(view->lineWrapMode(), QPlainTextEdit::NoWrap);
    EXPECT_EQ(view->wordWrapMode(), QTextOption::NoWrap);
    EXPECT_EQ(view->maximumBlockCount(), 100'000);
    EXPECT_EQ(view->font().family(), QStringLiteral("Courier"));
    EXPECT_EQ(find<QLabel>("traceStatus")->font().pixelSize(), 10);
    EXPECT_EQ(find<QLabel>("traceStatus")->textFormat(), Qt::RichText);
    EXPECT_EQ(status(), stoppedStatus);
    const auto* clear = find<QPushButton>("clear");
    EXPECT_EQ(clear->text(), QStringLiteral("Clear"));
    EXPECT_EQ(clear->height(), 22);
    EXPECT_EQ(clear->palette().color(QPalette::Button), QColor(255, 180, 180));
    EXPECT_EQ(find<QToolButton>("startStop")->text(), QStringLiteral("Start Trace"));
    EXPECT_FALSE(find<QToolButton>("startStop")->icon().isNull());
    EXPECT_TRUE(find<QWidget>("filterSetup")->isEnabled());
    EXPECT_FALSE(find<QWidget>("outputSwitch")->isEnabled());
}

TEST_F(TraceWindow, TraceCanBeStartedInTheNarrowestWindow)
{
    m_dialog->show();
    const auto* header = m_dialog->findChild<WidgetHeader*>();
    for (const int width : {1200, 550, 350}) {
        m_dialog->resize(width, 300);
        QApplication::processEvents();
        EXPECT_EQ(header->isWrapped(), width < 700) << width;
        for (const char* name : {"inputSelect", "filterSetup", "numberFormat", "startStop",
                                 "recordMode", "outputSwitch", "outputSelect"}) {
            const auto* control = find<QWidget>(name);
            const QRect place(control->mapTo(header, QPoint()), control->size());
            EXPECT_TRUE(control->isVisible()) << name;
            EXPECT_TRUE(header->rect().contains(place))
                << name << " at " << width << ": " << place.right();
        }
        const auto* start = find<QWidget>("startStop");
        EXPECT_GE(start->width(), start->sizeHint().width());
    }
}

TEST_F(TraceWindow, SelectionsOfferTheirEntries)
{
    const auto* display = find<gui::QwtComboBox>("displayMode");
    const auto* record = find<gui::QwtComboBox>("recordMode");
    QStringList texts;
    std::vector<int> values;
    for (const auto* box : {display, record}) {
        for (int i = 0; i < box->count(); ++i) {
            texts.append(box->itemText(i));
            values.push_back(box->itemData(i).toInt());
        }
    }
    EXPECT_EQ(texts.join(QLatin1Char('|')),
              QStringLiteral("CAN|CANaerospace|ARINC-825|Binary / Ascii CAN|Binary / Ascii "
                             "CANaerospace|Binary / Ascii ARINC-825"));
    EXPECT_EQ(values, (std::vector<int>{0, 3, 6, 0, 3, 4}));
}

TEST_F(TraceWindow, OneBatchIsOneBlockOfItsLines)
{
    feed(batchOf({7, 8}));
    feed(batchOf({9}));
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("00000 1.500 S 7 D1 0-> 011"),
                                    QStringLiteral("00001 1.500 S 8 D1 0-> 011"),
                                    QStringLiteral("00002 1.500 S 9 D1 0-> 011")}));
    EXPECT_EQ(find<QPlainTextEdit>("traceView")->blockCount(), 2);
    EXPECT_EQ(counted(), QStringLiteral("0003"));
}

TEST_F(TraceWindow, ErrorFrameIsBoldAndRed)
{
    feed(batchOf({7}, "Nose", MessageCan::EFrameType::Error));
    EXPECT_EQ(lines().value(0).simplified(), QStringLiteral("00000 1.500 ERROR FRAME"));
    QTextCursor cursor(find<QPlainTextEdit>("traceView")->document());
    cursor.setPosition(cursor.document()->toPlainText().indexOf(QStringLiteral("RROR")));
    EXPECT_EQ(cursor.charFormat().foreground().color(), QColor(0xAA, 0, 0));
    EXPECT_EQ(cursor.charFormat().fontWeight(), static_cast<int>(QFont::Bold));
}

TEST_F(TraceWindow, BatchOfAnotherInterfaceIsIgnored)
{
    m_object->settings().inputInterface = QStringLiteral("Tail");
    feed(batchOf({7}));
    EXPECT_TRUE(lines().isEmpty());
    EXPECT_EQ(counted(), QStringLiteral("0000"));
    feed(batchOf({7}, "Tail"));
    EXPECT_EQ(lines().size(), 1);
    EXPECT_EQ(counted(), QStringLiteral("0001"));
}

TEST_F(TraceWindow, InputOffCountsAndShowsNothing)
{
    click("inputSwitch");
    EXPECT_FALSE(m_object->settings().inputOn);
    EXPECT_FALSE(m_project.isEdited()) << "the input switch does not mark the project";
    click("startStop");
    feed(batchOf({7}));
    EXPECT_TRUE(lines().isEmpty());
    EXPECT_EQ(counted(), QStringLiteral("0001"));
    click("startStop");
    EXPECT_EQ(file(".zla"), QByteArray(""));
    EXPECT_EQ(file(".zlb").size(), 128);
}

TEST_F(TraceWindow, FilterDecides)
{
    m_object->filter().setMin(8);
    click("filterSwitch");
    EXPECT_TRUE(m_object->filter().isOn());
    EXPECT_TRUE(m_project.isEdited());
    feed(batchOf({7, 8}));
    EXPECT_EQ(lines(), QStringList{QStringLiteral("00000 1.500 S 8 D1 0-> 011")});
}

TEST_F(TraceWindow, FilterSetupEditsTheFilterWhileFramesComeIn)
{
    m_object->filter().setOn(true);
    auto* filter = m_dialog->findChild<gui::DialogFilter*>();
    EXPECT_FALSE(filter->isVisible());
    click("filterSetup");
    EXPECT_TRUE(filter->isVisible());
    EXPECT_FALSE(filter->isModal());
    EXPECT_TRUE(m_project.isEdited());
    feed(batchOf({7}));
    EXPECT_EQ(lines().size(), 1);
    filter->findChild<QSpinBox*>(QStringLiteral("minId"))->setValue(8);
    feed(batchOf({7, 8}));
    EXPECT_EQ(lines().size(), 2);
}

TEST_F(TraceWindow, FilterSetupLetsGoOfTheFilterWhenTheObjectGoes)
{
    click("filterSetup");
    auto* filter = m_dialog->findChild<gui::DialogFilter*>();
    auto* minimum = filter->findChild<QSpinBox*>(QStringLiteral("minId"));
    m_project.deleteObject(m_object->id());
    EXPECT_FALSE(filter->isVisible());
    minimum->setValue(5); // would write into what is gone
}

TEST_F(TraceWindow, ViewDropsItsOldestBatchesWhenItHasTooManyLetters)
{
    auto* view = m_dialog->findChild<gui::TraceView*>();
    view->setMaxCharacters(150);
    for (std::uint32_t id = 1; id <= 9; ++id) {
        feed(batchOf({id}));
    }
    EXPECT_LE(view->document()->characterCount(), 150);
    EXPECT_GE(view->blockCount(), 4);
    EXPECT_EQ(lines().constLast(), QStringLiteral("00008 1.500 S 9 D1 0-> 011"));
    EXPECT_EQ(view->maximumBlockCount(), 100'000);
}

TEST_F(TraceWindow, TraceWritesBothFilesAndTellsSo)
{
    click("startStop");
    const QString active = QStringLiteral("<b><font color=\"#00AA00\"> Trace Active</font></b>  ");
    const QString name = QStringLiteral(" MB   -   ") + m_directory + QLatin1Char('/') + traceName;
    EXPECT_EQ(status(), active + QStringLiteral("0 / 0.0") + name);
    EXPECT_EQ(find<QToolButton>("startStop")->text(), QStringLiteral("Stop Trace"));
    feed(batchOf({7, 8}));
    EXPECT_EQ(status(), active + QStringLiteral("2 / 0.0") + name);
    click("startStop");
    EXPECT_EQ(status(), stoppedStatus);
    EXPECT_EQ(find<QToolButton>("startStop")->text(), QStringLiteral("Start Trace"));
    EXPECT_EQ(file(".zlb").size(), 128 + 2 * 28);
    EXPECT_EQ(file(".zla"), QByteArray("00000 1.500 S 7      D1   0-> 011\n"
                                       "00001 1.500 S 8      D1   0-> 011\n"));
}

TEST_F(TraceWindow, NamesOfFilesAreLatin1)
{
    const QByteArray directory = m_directory.toLatin1() + "/fl\xFCge";
    ASSERT_EQ(::mkdir(directory.constData(), 0700), 0);
    setPath(m_directory + QStringLiteral("/fl\u00FCge"));
    click("startStop");
    EXPECT_TRUE(status().endsWith(QStringLiteral("/fl\u00FCge/") + traceName));
    for (const char* suffix : {".zlb", ".zla"}) {
        const QByteArray path = directory + '/' + traceName.toLatin1() + suffix;
        EXPECT_EQ(std::remove(path.constData()), 0) << suffix;
    }
    EXPECT_EQ(::rmdir(directory.constData()), 0);
}

TEST_F(TraceWindow, StartAndStopHaveIconsOfTheirOwn)
{
    const auto image = [this] {
        return find<QToolButton>("startStop")->icon().pixmap(16).toImage();
    };
    const QImage start = image();
    EXPECT_LT(start.pixelColor(8, 8).red(), 60) << "black";
    click("startStop");
    EXPECT_GT(image().pixelColor(8, 8).red(), 180) << "red";
    EXPECT_LT(image().pixelColor(8, 8).green(), 100);
    click("startStop");
    EXPECT_EQ(image(), start);
}

TEST_F(TraceWindow, StartInAMissingDirectoryTellsOnceAndIsActive)
{
    const QString missing = m_directory + QStringLiteral("/none");
    setPath(missing);
    const int before = MessageBoxes::count();
    MessageBoxes::setNextAnswer(QMessageBox::Ok);
    click("startStop");
    EXPECT_EQ(MessageBoxes::count(), before + 1);
    EXPECT_EQ(MessageBoxes::last().icon, QMessageBox::Critical);
    EXPECT_EQ(MessageBoxes::last().title, QStringLiteral("ZUL Warning"));
    EXPECT_EQ(MessageBoxes::last().buttons,
              std::vector<QMessageBox::StandardButton>{QMessageBox::Ok});
    EXPECT_EQ(MessageBoxes::last().text,
              QStringLiteral("Could not open trace file <%1/%2> !\nCheck your path under "
                             "preferences !")
                  .arg(missing, traceName));
    feed(batchOf({7}));
    EXPECT_EQ(find<QToolButton>("startStop")->text(), QStringLiteral("Stop Trace"));
    EXPECT_TRUE(status().contains(QStringLiteral("Trace Active</font></b>  0 / 0.0 MB   -   ")));
    click("startStop");
    EXPECT_EQ(MessageBoxes::count(), before + 1);
    EXPECT_EQ(find<QToolButton>("startStop")->text(), QStringLiteral("Start Trace"));
    EXPECT_EQ(status(), stoppedStatus);
    EXPECT_TRUE(QDir(m_directory).entryList(QDir::Files).isEmpty());
}

TEST_F(TraceWindow, ClearCountsLinesFrom0AgainAlsoInTheRunningFile)
{
    click("startStop");
    feed(batchOf({7, 8}));
    click("clear");
    EXPECT_TRUE(lines().isEmpty());
    feed(batchOf({9}));
    click("startStop");
    EXPECT_EQ(lines(), QStringList{QStringLiteral("00000 1.500 S 9 D1 0-> 011")});
    EXPECT_TRUE(file(".zla").endsWith("00000 1.500 S 9      D1   0-> 011\n"));
    EXPECT_EQ(file(".zla").count('\n'), 3);
    EXPECT_EQ(counted(), QStringLiteral("0003")) << "of all frames";
}

TEST_F(TraceWindow, DisplayModeGovernsTheScreenAlone)
{
    choose("displayMode", 2);
    EXPECT_EQ(m_object->settings().displayMode, 6);
    EXPECT_TRUE(m_project.isEdited());
    click("startStop");
    feed(batchOf({7}));
    click("startStop");
    EXPECT_EQ(lines(), QStringList{QStringLiteral("00000 1.500 S 7 D1 Unknown Type")});
    EXPECT_EQ(file(".zla"), QByteArray("00000 1.500 S 7      D1   0-> 011\n"));
}

TEST_F(TraceWindow, RecordFormatGovernsTheTextFileAlone)
{
    choose("recordMode", 2);
    EXPECT_EQ(m_object->settings().traceFormat, 4);
    EXPECT_TRUE(m_project.isEdited());
    click("startStop");
    feed(batchOf({7}));
    click("startStop");
    EXPECT_EQ(lines(), QStringList{QStringLiteral("00000 1.500 S 7 D1 0-> 011")});
    EXPECT_EQ(file(".zla"), QByteArray("\n"));
}

TEST_F(TraceWindow, NumberTypeIsStoredAndUsedFromThenOn)
{
    feed(batchOf({0x4D}));
    click("numberFormat");
    EXPECT_EQ(m_object->settings().numberType, 1);
    EXPECT_TRUE(m_project.isEdited());
    feed(batchOf({0x4D}));
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("00000 1.500 S 77 D1 0-> 011"),
                                    QStringLiteral("00001 1.500 S 0x04d D1 0-> $0b")}));
}

TEST_F(TraceWindow, SettingsComeFromTheObjectButTheRecordFormat)
{
    auto& settings = m_object->settings();
    settings.inputOn = false;
    settings.displayMode = 3;
    settings.numberType = 1;
    settings.traceFormat = 3;
    settings.inputInterface = QStringLiteral("Tail");
    settings.outputInterface = QStringLiteral("Wing");
    m_object->filter().setOn(true);
    m_dialog->updateDialog();
    const auto* header = m_dialog->findChild<WidgetHeader*>();
    EXPECT_FALSE(header->isInputOn());
    EXPECT_FALSE(header->isOutputOn());
    EXPECT_TRUE(header->isFilterOn());
    EXPECT_EQ(header->numberType(), 1);
    EXPECT_EQ(find<gui::WidgetInterfaceSelect>("inputSelect")->interface(), QStringLiteral("Tail"));
    EXPECT_EQ(find<gui::WidgetInterfaceSelect>("outputSelect")->interface(),
              QStringLiteral("Wing"));
    EXPECT_EQ(find<gui::QwtComboBox>("displayMode")->currentData().toInt(), 3);
    EXPECT_EQ(find<gui::QwtComboBox>("recordMode")->currentIndex(), 0);
    EXPECT_EQ(settings.traceFormat, 3);
    EXPECT_FALSE(m_project.isEdited());
}

TEST_F(TraceWindow, InterfacesAreStored)
{
    auto* header = m_dialog->findChild<WidgetHeader*>();
    emit header->signalInputInterface(QStringLiteral("Tail"));
    EXPECT_EQ(m_object->settings().inputInterface, QStringLiteral("Tail"));
    EXPECT_TRUE(m_project.isEdited());
    m_project.save(QString());
    emit header->signalOutputInterface(QStringLiteral("Wing"));
    EXPECT_EQ(m_object->settings().outputInterface, QStringLiteral("Wing"));
    EXPECT_TRUE(m_project.isEdited());
}

TEST_F(TraceWindow, ClosingTheWindowClosesTheFiles)
{
    click("startStop");
    feed(batchOf({7}));
    delete m_dialog;
    EXPECT_EQ(file(".zlb").size(), 128 + 28);
    EXPECT_EQ(file(".zla").count('\n'), 1);
}

TEST_F(TraceWindow, WindowWithoutAnObjectDoesNothing)
{
    m_project.deleteObject(m_object->id());
    ASSERT_EQ(m_dialog->object(), nullptr);
    feed(batchOf({7}));
    for (const char* name :
         {"inputSwitch", "filterSwitch", "filterSetup", "numberFormat", "clear"}) {
        click(name);
    }
    choose("displayMode", 1);
    choose("recordMode", 1);
    emit m_dialog->findChild<WidgetHeader*>()->signalInputInterface(QStringLiteral("Tail"));
    emit m_dialog->findChild<WidgetHeader*>()->signalOutputInterface(QStringLiteral("Tail"));
    click("startStop");
    click("startStop");
    m_dialog->updateDialog();
    EXPECT_TRUE(lines().isEmpty());
}

} // namespace
