#include "gui/frame/DialogFilter.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/QwtIdSelect.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/traffic/DialogReplay.h"
#include "gui/traffic/DialogTrace.h"
#include "gui/traffic/ValueSlider.h"
#include "gui/traffic/Widget825Raw.h"
#include "gui/traffic/WidgetCanAs.h"
#include "gui/traffic/WidgetTransmitCan.h"
#include "project/ObjectReplay.h"
#include "project/ObjectTrace.h"
#include "tests/gui/TransmitFixture.h"
#include "tests/support/ConsoleCapture.h"

#include <QGroupBox>
#include <QLCDNumber>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QStackedWidget>
#include <QTimer>

// Where the controls of the traffic windows stand, and how they look.

namespace {

/// Where a child is, in pixels of its window.
QRect placeIn(const QWidget& window, const QString& name)
{
    const auto* control = window.findChild<QWidget*>(name);
    if (control == nullptr) {
        ADD_FAILURE() << qPrintable(name);
        return {};
    }
    return {control->mapTo(&window, QPoint()), control->size()};
}

QRect placeIn(const QWidget& window, const char* name)
{
    return placeIn(window, QLatin1String(name));
}

// Whether the places stand below each other, without a common row of pixels.
void expectBelowEachOther(const std::vector<QRect>& places)
{
    for (std::size_t i = 1; i < places.size(); ++i) {
        EXPECT_LT(places[i - 1].bottom(), places[i].top()) << i;
    }
}

// Whether the places stand in one row from left to right.
void expectInOneRow(const std::vector<QRect>& places)
{
    for (std::size_t i = 1; i < places.size(); ++i) {
        EXPECT_LT(places[i - 1].right(), places[i].left()) << i;
        EXPECT_LT(places[i].top(), places[i - 1].bottom()) << i;
        EXPECT_LT(places[i - 1].top(), places[i].bottom()) << i;
    }
}

template <typename Dialog, typename WindowObject>
class WindowTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object =
            dynamic_cast<WindowObject*>(m_project.createObject(WindowObject::typeInfo().type));
        m_dialog = std::make_unique<Dialog>(m_object, nullptr);
        m_dialog->show();
        QApplication::processEvents();
    }
    QRect place(const char* name) const { return placeIn(*m_dialog, name); }
    QRect header() const
    {
        const auto* header = m_dialog->template findChild<WidgetHeader*>();
        return {header->mapTo(m_dialog.get(), QPoint()), header->size()};
    }

    zul::test::TestHome m_home;
    zul::test::SettableClock m_clock{100.0};
    Project m_project{{WindowObject::typeInfo()}, m_home.file(QStringLiteral("default.zul"))};
    WindowObject* m_object = nullptr;
    std::unique_ptr<Dialog> m_dialog;
};

using TraceLook = WindowTest<gui::DialogTrace, ObjectTrace>;
using ReplayLook = WindowTest<gui::DialogReplay, ObjectReplay>;

TEST_F(TraceLook, HeaderStatusViewAndButtonsStandBelowEachOther)
{
    expectBelowEachOther(
        {header(), place("traceStatus"), place("traceView"), place("displayMode")});
    expectBelowEachOther({place("traceView"), place("clear")});
    expectInOneRow({place("displayMode"), place("clear")});
}

TEST_F(ReplayLook, FourControlsStandInOneRowAndTheFileNameBelowAllOfThem)
{
    expectInOneRow({place("load"), place("start"), place("stop"), place("autoRepeat")});
    const QRect name = place("fileName");
    for (const char* control : {"load", "start", "stop", "autoRepeat"}) {
        expectBelowEachOther({header(), place(control), name, place("time"), place("position")});
    }
    EXPECT_EQ(name.left(), place("load").left());
    EXPECT_EQ(name.right(), place("autoRepeat").right());
}

TEST_F(ReplayLook, SliderStandsAt0WhenAFileHasEndedByItself)
{
    m_home.write(QStringLiteral("trace.zla"), "0 1000 S 1 D0\n0 1002 S 2 D0\n");
    gui::FileDialogs::setNextFileName(m_home.file(QStringLiteral("trace.zla")));
    const zul::test::ConsoleCapture console;
    const auto click = [this](const char* name) {
        QTest::mouseClick(m_dialog->findChild<QWidget*>(QLatin1String(name)), Qt::LeftButton);
    };
    auto* timer = m_dialog->findChild<QTimer*>();
    const auto* slider = m_dialog->findChild<QSlider*>(QStringLiteral("position"));
    const auto tick = [&](double seconds) {
        m_clock.advance(seconds);
        const QSignalSpy turns(timer, &QTimer::timeout);
        return QTest::qWaitFor([&] { return turns.count() > 0; });
    };
    click("load");
    click("start");
    ASSERT_TRUE(tick(1.0));
    EXPECT_EQ(slider->value(), 500);
    ASSERT_TRUE(tick(1.5));
    EXPECT_FALSE(timer->isActive());
    EXPECT_EQ(slider->value(), 0);
}

TEST_F(ReplayLook, CursorIsBusyWhileAFileIsLoaded)
{
    m_home.write(QStringLiteral("trace.zla"), "0 1000 S 1 D0\n");
    gui::FileDialogs::setNextFileName(m_home.file(QStringLiteral("trace.zla")));
    const zul::test::ConsoleCapture console;
    int shape = -1;
    // The name is shown behind the frames, which are read by then.
    auto* name = m_dialog->findChild<QLineEdit*>(QStringLiteral("fileName"));
    QObject::connect(name, &QLineEdit::textChanged, name, [&shape] {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        shape = cursor == nullptr ? -1 : static_cast<int>(cursor->shape());
    });
    QTest::mouseClick(m_dialog->findChild<QWidget*>(QStringLiteral("load")), Qt::LeftButton);
    EXPECT_EQ(shape, static_cast<int>(Qt::BusyCursor));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(FilterLook, ListSelectionButtonsAndOkHaveTheirOrder)
{
    gui::DialogFilter dialog;
    dialog.show();
    QApplication::processEvents();
    const auto place = [&dialog](const char* name) { return placeIn(dialog, name); };
    const auto* idSelect = dialog.findChild<gui::QwtIdSelect*>();
    const QRect selection(idSelect->mapTo(&dialog, QPoint()), idSelect->size());
    expectBelowEachOther({place("minId"), place("maxId"), place("ids"), place("ok")});
    expectBelowEachOther({place("limit"), place("single"), place("ok")});
    expectBelowEachOther({selection, place("add"), place("delete"), place("clear"), place("ok")});
    for (const QRect& right : {selection, place("add"), place("delete"), place("clear")}) {
        EXPECT_LT(place("ids").right(), right.left());
        EXPECT_TRUE(place("single").contains(right));
    }
    EXPECT_LE(place("ids").top(), selection.top()) << "the list goes over all rows";
    EXPECT_GT(place("ids").bottom(), place("clear").bottom());
}

TEST(SliderPage, SliderStandsOverTheWholeWidthAndTheValueBetweenItsLimits)
{
    gui::ValueSlider page(nullptr);
    page.resize(400, 50);
    page.show();
    QApplication::processEvents();
    const auto* slider = page.findChild<QSlider*>();
    const QRect top(slider->mapTo(&page, QPoint()), slider->size());
    EXPECT_EQ(top.left(), 0);
    EXPECT_EQ(top.width(), page.width());
    const QRect actual = placeIn(page, "actual");
    expectInOneRow({placeIn(page, "minimum"), actual, placeIn(page, "maximum")});
    expectBelowEachOther({top, actual});
    EXPECT_EQ(placeIn(page, "minimum").width(), 60);
    EXPECT_EQ(placeIn(page, "maximum").width(), 60);
    EXPECT_EQ(placeIn(page, "minimum").left(), 0);
    EXPECT_EQ(placeIn(page, "maximum").right(), page.width() - 1);
}

// A control's own ground, read from its pixels.
QColor ground(QWidget& control)
{
    const QImage picture = control.grab().toImage();
    return picture.pixelColor(4, picture.height() / 2 - 5);
}

template <typename Editor>
void expectWhiteEntries()
{
    Editor editor;
    editor.setMessage(0, SendMsg());
    EXPECT_EQ(editor.palette().color(QPalette::Window), QColor(220, 220, 220));
    EXPECT_EQ(editor.frameStyle(), 34);
    int controls = 0;
    for (QComboBox* box : editor.template findChildren<QComboBox*>()) {
        EXPECT_EQ(box->palette().color(QPalette::Button), QColor(255, 255, 255))
            << qPrintable(box->objectName());
        ++controls;
    }
    for (QAbstractSpinBox* box : editor.template findChildren<QAbstractSpinBox*>()) {
        EXPECT_EQ(box->palette().color(QPalette::Active, QPalette::Base), QColor(255, 255, 255))
            << qPrintable(box->objectName());
        box->setEnabled(true);
        EXPECT_EQ(ground(*box), QColor(255, 255, 255)) << qPrintable(box->objectName());
        ++controls;
    }
    for (QLineEdit* line : editor.template findChildren<QLineEdit*>()) {
        EXPECT_EQ(line->palette().color(QPalette::Active, QPalette::Base), QColor(255, 255, 255));
        ++controls;
    }
    EXPECT_GT(controls, 10);
}

TEST(EditorLook, EntryControlsOfAllEditorsAreWhite)
{
    expectWhiteEntries<WidgetTransmitCan>();
    expectWhiteEntries<WidgetCanAs>();
    expectWhiteEntries<Widget825Raw>();
}

} // namespace
