#include "core/SettingsStore.h"
#include "core/Version.h"
#include "gui/controls/QwtComboBox.h"
#include "gui/controls/QwtLabel.h"
#include "gui/desktop/DialogAbout.h"
#include "gui/desktop/DialogHelp.h"
#include "gui/desktop/DialogPreferences.h"
#include "gui/desktop/DialogStatusBar.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/GuiRequests.h"
#include "gui/frame/MessageGuiAboutDialog.h"
#include "gui/frame/MessageGuiDialog.h"
#include "tests/support/TestHome.h"
#include "tests/support/WorkingDirectory.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

using gui::FileDialogs;
using gui::QwtComboBox;

class Preferences : public testing::Test
{
protected:
    void SetUp() override { SettingsStore::instance().reset(); }
    void TearDown() override { SettingsStore::instance().reset(); }
    void open()
    {
        m_dialog = std::make_unique<gui::DialogPreferences>();
        m_dialog->show();
    }
    template <typename Widget>
    Widget* find(const char* name) const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(name));
    }
    static int integer(const char* key, int none = -1)
    {
        return SettingsStore::instance().integer(QLatin1String(key), none);
    }
    static QString string(const char* key)
    {
        return SettingsStore::instance().string(QLatin1String(key), QStringLiteral("none"));
    }
    static void set(const char* key, int value)
    {
        SettingsStore::instance().setInteger(QLatin1String(key), value);
    }
    static void set(const char* key, const char* value)
    {
        SettingsStore::instance().setString(QLatin1String(key), QLatin1String(value));
    }
    void choose(const char* box, int steps, Qt::Key key = Qt::Key_Down) const
    {
        for (int i = 0; i < steps; ++i) {
            QTest::keyClick(find<QComboBox>(box), key);
        }
    }
    std::string items(const char* box) const
    {
        std::string all;
        for (int i = 0; i < find<QComboBox>(box)->count(); ++i) {
            all += find<QComboBox>(box)->itemText(i).toStdString() + "=" +
                   std::to_string(find<QComboBox>(box)->itemData(i).toInt()) + " ";
        }
        return all;
    }

    std::unique_ptr<gui::DialogPreferences> m_dialog;
};

TEST_F(Preferences, HasItsPagesAndControls)
{
    open();
    EXPECT_EQ(m_dialog->windowTitle(), QLatin1String("Preferences"));
    const auto* pages = find<QListWidget>("pages");
    ASSERT_EQ(pages->count(), 3);
    EXPECT_EQ(pages->item(0)->text(), QLatin1String("General"));
    EXPECT_EQ(pages->item(1)->text(), QLatin1String("ARINC-825 Profiles"));
    EXPECT_EQ(pages->item(2)->text(), QLatin1String("Trace Defaults"));
    EXPECT_EQ(items("onClose"),
              "Keep object in project=0 Remove object from project=1 Ask User=2 ");
    EXPECT_EQ(items("topLevel"), "Never=0 On starting ZUL=1 Always=2 ");
    EXPECT_EQ(items("suffix"), ".pro=0 .xml=0 ");
    EXPECT_TRUE(find<QComboBox>("suffix")->isEditable());
    EXPECT_EQ(items("version"), "1.0=0 2.0=1 ");
    EXPECT_EQ(find<QCheckBox>("autoLoad")->text(), QLatin1String("Auto Load"));
    EXPECT_EQ(find<QPushButton>("ok")->text(), QLatin1String("Ok"));
    std::vector<QString> labels;
    for (const QLabel* label : m_dialog->findChildren<QLabel*>()) {
        labels.push_back(label->text());
    }
    for (const char* text : {"When closing a dialog :", "Restore Top Level Size/Position :",
                             "Load all profiles on startup", "Profile File Suffix",
                             "ARINC 825 Version", "Trace Path :"}) {
        EXPECT_EQ(std::count(labels.begin(), labels.end(), QLatin1String(text)), 1) << text;
    }
}

// Label, control, title of the group round it, number of its page.
TEST_F(Preferences, EveryControlStandsOnItsPageBehindItsLabel)
{
    open();
    struct Row
    {
        const char* label;
        const char* control;
        const char* group;
        int page;
    };
    const auto* stack = m_dialog->findChild<QStackedWidget*>();
    for (const Row& row :
         {Row{"When closing a dialog :", "onClose", "Application", 0},
          Row{"Restore Top Level Size/Position :", "topLevel", "Application", 0},
          Row{"Load all profiles on startup", "autoLoad", "", 1},
          Row{"Profile File Suffix", "suffix", "", 1}, Row{"ARINC 825 Version", "version", "", 1},
          Row{"Trace Path :", "tracePath", "Trace", 2},
          Row{"Trace Path :", "browse", "Trace", 2}}) {
        const QWidget& page = *stack->widget(row.page);
        auto* control = page.findChild<QWidget*>(QLatin1String(row.control));
        ASSERT_NE(control, nullptr) << row.control;
        const auto* group = qobject_cast<const QGroupBox*>(control->parentWidget());
        EXPECT_EQ(group != nullptr ? group->title() : QString(), QLatin1String(row.group));
        stack->parentWidget()->findChild<QListWidget*>()->setCurrentRow(row.page);
        QCoreApplication::processEvents();
        bool isLabelled = false;
        for (const QLabel* label : page.findChildren<QLabel*>()) {
            const int middle = control->mapTo(m_dialog.get(), control->rect().center()).y();
            const QRect place(label->mapTo(m_dialog.get(), QPoint(0, 0)), label->size());
            isLabelled |= label->text() == QLatin1String(row.label) && place.top() <= middle &&
                          place.bottom() >= middle;
        }
        EXPECT_TRUE(isLabelled) << row.control;
    }
}

TEST_F(Preferences, ShowsDefaultsWithoutWritingThem)
{
    open();
    EXPECT_EQ(find<QComboBox>("onClose")->currentIndex(), 0);
    EXPECT_EQ(find<QComboBox>("topLevel")->currentText(), QLatin1String("Never"));
    EXPECT_FALSE(find<QCheckBox>("autoLoad")->isChecked());
    EXPECT_EQ(find<QComboBox>("suffix")->currentText(), QString());
    EXPECT_EQ(find<QComboBox>("version")->currentIndex(), 0);
    EXPECT_EQ(find<QLineEdit>("tracePath")->text(), QLatin1String("."));
    for (const char* key : {"OnCloseDialog", "RestoreTopLevel", "AutoLoadProfile",
                            "Arinc825ProfileSuffix", "ArincProfileVersion", "TracePath"}) {
        EXPECT_EQ(string(key), QLatin1String("none")) << key;
    }
}

TEST_F(Preferences, ShowsWhatIsSet)
{
    set("OnCloseDialog", 2);
    set("RestoreTopLevel", 1);
    set("AutoLoadProfile", 7);
    set("Arinc825ProfileSuffix", ".txt");
    set("ArincProfileVersion", 1);
    set("TracePath", "/traces");
    open();
    EXPECT_EQ(find<QComboBox>("onClose")->currentText(), QLatin1String("Ask User"));
    EXPECT_EQ(find<QComboBox>("topLevel")->currentText(), QLatin1String("On starting ZUL"));
    EXPECT_TRUE(find<QCheckBox>("autoLoad")->isChecked());
    EXPECT_EQ(find<QComboBox>("suffix")->currentText(), QLatin1String(".txt"));
    EXPECT_EQ(find<QComboBox>("version")->currentText(), QLatin1String("2.0"));
    EXPECT_EQ(find<QLineEdit>("tracePath")->text(), QLatin1String("/traces"));
    EXPECT_EQ(integer("AutoLoadProfile"), 7) << "showing writes nothing back";
}

TEST_F(Preferences, UnknownClosePolicyShowsNothing)
{
    set("OnCloseDialog", 5);
    open();
    EXPECT_EQ(find<QComboBox>("onClose")->currentIndex(), -1);
    EXPECT_EQ(integer("OnCloseDialog"), 5);
}

TEST_F(Preferences, NumbersThatNoBoxHasShowNothingAndStay)
{
    for (const int odd : {-1, 2, 7}) {
        set("RestoreTopLevel", odd == 2 ? 3 : odd);
        set("ArincProfileVersion", odd);
        open();
        EXPECT_EQ(find<QComboBox>("topLevel")->currentIndex(), -1) << odd;
        EXPECT_EQ(find<QComboBox>("version")->currentIndex(), -1) << odd;
        EXPECT_EQ(integer("ArincProfileVersion"), odd);
    }
    set("OnCloseDialog", "abc");
    open();
    EXPECT_EQ(find<QComboBox>("onClose")->currentIndex(), 0) << "a text counts as 0";
    EXPECT_EQ(string("OnCloseDialog"), QLatin1String("abc"));
}

TEST_F(Preferences, SuffixIsWhatIsTyped)
{
    set("Arinc825ProfileSuffix", ".PRO");
    open();
    find<QListWidget>("pages")->setCurrentRow(1);
    QApplication::setActiveWindow(m_dialog.get());
    auto* suffix = find<QComboBox>("suffix");
    suffix->setFocus();
    QTest::keyClick(suffix, Qt::Key_Return);
    suffix->clearFocus();
    EXPECT_EQ(string("Arinc825ProfileSuffix"), QLatin1String(".PRO")) << "looking changes nothing";
    suffix->setFocus();
    suffix->lineEdit()->selectAll();
    QTest::keyClicks(suffix, QStringLiteral(".x"));
    EXPECT_EQ(string("Arinc825ProfileSuffix"), QLatin1String(".x"));
    QTest::keyClick(suffix, Qt::Key_Return);
    EXPECT_EQ(items("suffix"), ".pro=0 .xml=0 ");
}

TEST_F(Preferences, FirstStepFromAnOwnSuffixIsTheFirstOfTheList)
{
    open();
    choose("suffix", 1);
    EXPECT_EQ(string("Arinc825ProfileSuffix"), QLatin1String(".pro"));
    choose("suffix", 1);
    EXPECT_EQ(string("Arinc825ProfileSuffix"), QLatin1String(".xml"));
}

TEST_F(Preferences, TraceFormatHasASlotAlone)
{
    open();
    QMetaObject::invokeMethod(m_dialog.get(), "slotTraceType", Q_ARG(int, 3));
    EXPECT_EQ(integer("TraceDefaultFormat"), 3);
}

TEST_F(Preferences, SlotsStandInTheirOrder)
{
    std::vector<std::string> names;
    const QMetaObject& meta = gui::DialogPreferences::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        names.push_back(meta.method(i).name().toStdString());
    }
    EXPECT_EQ(names, (std::vector<std::string>{
                         "slotChangePage", "slotClose", "slotOnClose", "slotTopLevel",
                         "slotAutoLoadProfile", "slotProfileSuffix", "slotArincVersion",
                         "slotTraceType", "slotTracePath", "slotTraceBrowse"}));
}

TEST_F(Preferences, EveryChangeIsStoredAtOnce)
{
    open();
    choose("onClose", 1);
    EXPECT_EQ(integer("OnCloseDialog"), 1);
    choose("onClose", 1);
    EXPECT_EQ(integer("OnCloseDialog"), 2);
    choose("topLevel", 2);
    EXPECT_EQ(integer("RestoreTopLevel"), 2);
    find<QListWidget>("pages")->setCurrentRow(1);
    QTest::mouseClick(find<QCheckBox>("autoLoad"), Qt::LeftButton, {},
                      QPoint(5, find<QCheckBox>("autoLoad")->height() / 2));
    EXPECT_EQ(integer("AutoLoadProfile"), 1);
    QTest::mouseClick(find<QCheckBox>("autoLoad"), Qt::LeftButton, {},
                      QPoint(5, find<QCheckBox>("autoLoad")->height() / 2));
    EXPECT_EQ(integer("AutoLoadProfile"), 0);
    QTest::keyClicks(find<QComboBox>("suffix"), QStringLiteral(".p"));
    EXPECT_EQ(string("Arinc825ProfileSuffix"), QLatin1String(".p"));
    choose("version", 1);
    EXPECT_EQ(integer("ArincProfileVersion"), 1);
    find<QListWidget>("pages")->setCurrentRow(2);
    find<QLineEdit>("tracePath")->clear();
    QTest::keyClicks(find<QLineEdit>("tracePath"), QStringLiteral("a"));
    EXPECT_EQ(string("TracePath"), QLatin1String("a"));
}

TEST_F(Preferences, VersionTwoIsStoredAsOne)
{
    open();
    QMetaObject::invokeMethod(m_dialog.get(), "slotArincVersion", Q_ARG(int, 2));
    EXPECT_EQ(integer("ArincProfileVersion"), 1);
}

TEST_F(Preferences, ListChoosesThePage)
{
    open();
    auto* list = find<QListWidget>("pages");
    auto* stack = m_dialog->findChild<QStackedWidget*>();
    EXPECT_EQ(stack->currentIndex(), 0);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(2)).center());
    EXPECT_EQ(stack->currentIndex(), 2);
    list->setCurrentItem(nullptr);
    EXPECT_EQ(stack->currentIndex(), 2) << "of the item before";
}

TEST_F(Preferences, TraceDirectoryIsBrowsedFor)
{
    set("TracePath", "/old");
    open();
    FileDialogs::setNextFileName(QStringLiteral("/new"));
    QTest::mouseClick(find<QWidget>("browse"), Qt::LeftButton);
    EXPECT_EQ(FileDialogs::lastTitle(), QLatin1String("Trace Path"));
    EXPECT_EQ(FileDialogs::lastPath(), QLatin1String("/old"));
    EXPECT_EQ(string("TracePath"), QLatin1String("/new"));
    EXPECT_EQ(find<QLineEdit>("tracePath")->text(), QLatin1String("/new"));
    FileDialogs::setNextFileName(QString());
    QTest::mouseClick(find<QWidget>("browse"), Qt::LeftButton);
    EXPECT_EQ(string("TracePath"), QLatin1String("/new"));
}

TEST_F(Preferences, BrowsingReloadsTheFormWithoutWriting)
{
    open();
    set("OnCloseDialog", 2); // by another hand
    FileDialogs::setNextFileName(QStringLiteral("/new"));
    QTest::mouseClick(find<QWidget>("browse"), Qt::LeftButton);
    EXPECT_EQ(find<QComboBox>("onClose")->currentText(), QLatin1String("Ask User"));
    EXPECT_EQ(string("RestoreTopLevel"), QLatin1String("none"));
    EXPECT_EQ(string("Arinc825ProfileSuffix"), QLatin1String("none"));
}

TEST_F(Preferences, ChooserShowsTheDirectoriesOfThePresentPath)
{
    const zul::test::TestHome home;
    QDir(home.file(QString())).mkpath(QStringLiteral("traces/inner"));
    SettingsStore::instance().setString(QStringLiteral("TracePath"),
                                        home.file(QStringLiteral("traces")));
    open();
    QTimer::singleShot(0, [&home] {
        auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(chooser, nullptr);
        EXPECT_EQ(chooser->fileMode(), QFileDialog::Directory);
        EXPECT_TRUE(chooser->testOption(QFileDialog::ShowDirsOnly));
        EXPECT_EQ(chooser->directory(), QDir(home.file(QStringLiteral("traces"))));
        chooser->reject();
    });
    QTest::mouseClick(find<QWidget>("browse"), Qt::LeftButton);
    EXPECT_EQ(string("TracePath"), home.file(QStringLiteral("traces")));
}

TEST_F(Preferences, WindowMayGoBehindItsChooser)
{
    open();
    QTimer::singleShot(0, [this] { m_dialog.reset(); });
    QTest::mouseClick(find<QWidget>("browse"), Qt::LeftButton);
    EXPECT_EQ(m_dialog, nullptr);
    EXPECT_EQ(string("TracePath"), QLatin1String("none"));
}

TEST_F(Preferences, OkHides)
{
    open();
    QTest::mouseClick(find<QWidget>("ok"), Qt::LeftButton);
    EXPECT_FALSE(m_dialog->isVisible());
}

TEST(StatusBar, ShowsTheVersionAtItsEnd)
{
    gui::DialogStatusBar bar;
    const auto* label = bar.findChild<gui::QwtLabel*>(QStringLiteral("version"));
    EXPECT_EQ(label->text(), QLatin1String("ZUL 1.8.9 (2020)"));
    EXPECT_EQ(label->toolTip(), QLatin1String("ZUL 1.8.9 (2020)"));
    EXPECT_EQ(label->font().pixelSize(), 12);
    EXPECT_EQ(label->minimumWidth(), 60);
    EXPECT_TRUE(label->alignment().testFlag(Qt::AlignRight));
    bar.resize(500, bar.sizeHint().height());
    bar.show();
    EXPECT_GT(label->x(), 250);
    bar.showMessage(QStringLiteral("A message hides what is not permanent"));
    EXPECT_TRUE(label->isVisible());
}

TEST(StatusBar, TimerGoesOnTurnByTurn)
{
    const gui::DialogStatusBar bar;
    const auto* timer = bar.findChild<QTimer*>(QStringLiteral("turn"));
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isSingleShot());
    EXPECT_EQ(timer->interval(), 200);
    EXPECT_TRUE(QTest::qWaitFor([timer] { return timer->interval() == 100; }));
    EXPECT_TRUE(timer->isActive());
}

TEST(StatusBar, SlotsStandInTheirOrder)
{
    std::vector<std::string> names;
    const QMetaObject& meta = gui::DialogStatusBar::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        names.push_back(meta.method(i).name().toStdString());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"slotTimeout", "slotAbout", "slotStatus",
                                               "slotStatistic"}));
}

TEST(StatusBar, DoubleClickAsksForTheAboutBox)
{
    std::vector<std::int32_t> types;
    gui::GuiRequests::setHandler(
        [&types](std::unique_ptr<Message> request) { types.push_back(request->type()); });
    gui::DialogStatusBar bar;
    bar.show();
    QTest::mouseDClick(bar.findChild<gui::QwtLabel*>(QStringLiteral("version")), Qt::LeftButton);
    EXPECT_EQ(types, std::vector<std::int32_t>{MessageGuiAboutDialog::messageType});
    gui::GuiRequests::setHandler({});
}

TEST(StatusBar, OtherRequestsNameTheirTypes)
{
    std::vector<std::pair<int, int>> wanted;
    gui::GuiRequests::setHandler([&wanted](std::unique_ptr<Message> request) {
        const auto* window = message_cast<MessageGuiDialog>(request.get());
        wanted.emplace_back(window->objectType(), window->parameter());
    });
    gui::DialogStatusBar bar;
    QMetaObject::invokeMethod(&bar, "slotStatistic");
    QMetaObject::invokeMethod(&bar, "slotStatus");
    EXPECT_EQ(wanted, (std::vector<std::pair<int, int>>{{10, 0}, {6, 0}}));
    gui::GuiRequests::setHandler({});
}

TEST(AboutBox, TellsWhatTheProgramIs)
{
    DialogAbout about;
    about.show();
    EXPECT_EQ(about.windowTitle(), QLatin1String("ZUL"));
    const auto text = [&about](const char* name) {
        return about.findChild<QLabel*>(QLatin1String(name))->text();
    };
    EXPECT_EQ(text("name"), QLatin1String("ZUL"));
    EXPECT_TRUE(text("purpose").contains(QLatin1String("CANaerospace")));
    EXPECT_TRUE(text("purpose").contains(QLatin1String("ARINC 825")));
    EXPECT_TRUE(text("version").contains(QLatin1String("1.8.9")));
    int pictures = 0;
    for (const QLabel* label : about.findChildren<QLabel*>()) {
        pictures += label->pixmap(Qt::ReturnByValue).isNull() ? 0 : 1;
    }
    EXPECT_EQ(pictures, 3);
    int addresses = 0;
    for (const QLabel* label : about.findChildren<QLabel*>()) {
        addresses += label->text().contains(QLatin1String("docs/")) ? 1 : 0;
    }
    EXPECT_EQ(addresses, 3);
    EXPECT_EQ(about.findChild<QPushButton*>(QStringLiteral("close"))->text(),
              QLatin1String("Close"));
    QTest::mouseClick(about.findChild<QPushButton*>(QStringLiteral("close")), Qt::LeftButton);
    EXPECT_FALSE(about.isVisible());
}

TEST(HelpWindow, ShowsWhereThePagesWouldBe)
{
    const zul::test::TestHome home;
    const zul::test::WorkingDirectory directory(home.file(QString()));
    DialogHelp help;
    help.show();
    EXPECT_EQ(help.windowTitle(), QLatin1String("file:///") + QDir::currentPath() +
                                      QLatin1String("/../zuldoc/default.htm"));
    EXPECT_GT(help.width(), help.fontMetrics().horizontalAdvance(help.windowTitle()));
    EXPECT_EQ(help.findChild<QTextBrowser*>(), nullptr);
    EXPECT_EQ(help.layout()->spacing(), 15);
    EXPECT_EQ(help.layout()->contentsMargins(), QMargins(15, 15, 15, 15));
    EXPECT_EQ(help.findChild<QPushButton*>(QStringLiteral("close"))->text(),
              QLatin1String("Close"));
    QMetaObject::invokeMethod(&help, "slotLinkClicked",
                              Q_ARG(QUrl, QUrl(QStringLiteral("other.htm"))));
    QTest::mouseClick(help.findChild<QPushButton*>(QStringLiteral("close")), Qt::LeftButton);
    EXPECT_FALSE(help.isVisible());
}

TEST(HelpWindow, AddressKeepsWhatQtTakesForAMark)
{
    const zul::test::TestHome home;
    QDir(home.file(QString())).mkpath(QStringLiteral("a[*]b"));
    const zul::test::WorkingDirectory directory(home.file(QStringLiteral("a[*]b")));
    const DialogHelp help;
    EXPECT_TRUE(help.windowTitle().contains(QLatin1String("a[*][*]b"))) << "which shows as a[*]b";
}

TEST(HelpWindow, ShowsThePagesThatAreThere)
{
    zul::test::TestHome home;
    QDir(home.file(QString())).mkpath(QStringLiteral("zuldoc"));
    QDir(home.file(QString())).mkpath(QStringLiteral("bin"));
    home.write(QStringLiteral("zuldoc/default.htm"), "<a href=\"next.htm\">Next</a>");
    home.write(QStringLiteral("zuldoc/next.htm"), "The second page");
    const zul::test::WorkingDirectory directory(home.file(QStringLiteral("bin")));
    const DialogHelp help;
    auto* browser = help.findChild<QTextBrowser*>();
    ASSERT_NE(browser, nullptr);
    EXPECT_EQ(browser->toPlainText(), QLatin1String("Next"));
    emit browser->anchorClicked(browser->source().resolved(QUrl(QStringLiteral("next.htm"))));
    EXPECT_EQ(browser->toPlainText(), QLatin1String("The second page"));
}

} // namespace
