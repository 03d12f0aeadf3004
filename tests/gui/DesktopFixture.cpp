#include "tests/gui/DesktopFixture.h"

#include "comm/CanInterface.h"
#include "core/Kernel.h"
#include "core/SettingsStore.h"
#include "gui/desktop/WindowDesk.h"
#include "project/ObjectDial.h"
#include "project/ObjectReceive.h"
#include "project/ObjectTrace.h"
#include "project/ObjectTransmit.h"
#include "project/WindowMakers.h"
#include "tests/support/FixtureModules.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

namespace zul::test {

namespace {

// For all tests of the program: its module registry scans once.
const auto* const modules = testing::AddGlobalTestEnvironment(
    new FixtureModuleEnvironment({"good", "create_device_null"}, {CAN_VIRTUAL_MODULE}));

constexpr int modalDeadlineMs = 5000;
constexpr int modalPollMs = 5;

QPixmap square(Qt::GlobalColor color)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(color);
    return pixmap;
}

std::vector<ObjectTypeInfo> types()
{
    std::vector<ObjectTypeInfo> infos{comm::CanInterface::typeInfo(), ObjectReceive::typeInfo(),
                                      ObjectTransmit::typeInfo(), ObjectTrace::typeInfo(),
                                      ObjectDial::typeInfo()};
    for (ObjectTypeInfo& info : infos) {
        info.icon = square(Qt::blue);
    }
    return infos;
}

void registerMakers()
{
    for (const ObjectType type :
         {ObjectType::CanInterface, ObjectType::Receive, ObjectType::Trace, ObjectType::Dial}) {
        WindowMakers::instance().set(type, [](Object& object, QWidget* parent) {
            auto* dialog = new ProbeDialog(&object, parent);
            dialog->setName(object.name());
            dialog->setWindowIcon(QIcon(square(Qt::red)));
            return dialog;
        });
    }
}

} // namespace

void DesktopTest::SetUp()
{
    registerMakers();
    gui::Kernel::instance().setHome(m_home.path());
    SettingsStore::instance().reset();
    SettingsStore::instance().setFile(m_home.file(QStringLiteral("zul.ini")));
}

void DesktopTest::TearDown()
{
    m_window.reset();
    WindowMakers::instance().clear();
    SettingsStore::instance().reset();
}

void DesktopTest::make()
{
    m_window = std::make_unique<gui::DialogMain>(types());
    m_window->setEndProcess([this] { ++m_ended; });
    gui::Kernel::instance().setMainWindow(m_window.get());
}

void DesktopTest::start()
{
    make();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_window.get()));
    QApplication::setActiveWindow(m_window.get());
}

void DesktopTest::restart()
{
    m_window.reset();
    SettingsStore::instance().reset();
    SettingsStore::instance().setFile(m_home.file(QStringLiteral("zul.ini")));
    SettingsStore::instance().load();
    start();
}

void DesktopTest::startAndTick()
{
    start();
    tick();
}

QAction* DesktopTest::action(int id) const
{
    for (QAction* candidate : m_window->actions()) {
        if (candidate->data().isValid() && candidate->data().toInt() == id) {
            return candidate;
        }
    }
    return nullptr;
}

void DesktopTest::trigger(int id) const
{
    action(id)->trigger();
}

QMenu* DesktopTest::menu(const char* title) const
{
    for (const QAction* top : m_window->menuBar()->actions()) {
        if (top->text() == QLatin1String(title)) {
            return top->menu();
        }
    }
    return nullptr;
}

QStringList DesktopTest::shown(const char* title) const
{
    QMenu* const wanted = menu(title);
    emit wanted->aboutToShow();
    QStringList list;
    for (const QAction* item : wanted->actions()) {
        list.append(item->isSeparator() ? QStringLiteral("-") : item->text());
    }
    return list;
}

QAction* DesktopTest::entry(const char* menuTitle, const QString& text) const
{
    for (QAction* item : menu(menuTitle)->actions()) {
        if (item->text() == text) {
            return item;
        }
    }
    return nullptr;
}

Object* DesktopTest::add(ObjectType type)
{
    m_window->slotWindowSelect(static_cast<int>(type));
    return project().objects().rbegin()->second.get();
}

QMdiSubWindow* DesktopTest::subWindow(const Object& object) const
{
    return m_window->desk().find(object.id());
}

ProbeDialog* DesktopTest::dialog(const Object& object) const
{
    const QMdiSubWindow* found = subWindow(object);
    return found != nullptr ? dynamic_cast<ProbeDialog*>(found->widget()) : nullptr;
}

void DesktopTest::pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QApplication::setActiveWindow(m_window.get());
    QTest::keyClick(m_window.get(), key, modifiers);
}

QTableWidget* DesktopTest::interfaceTable() const
{
    return m_window->findChild<QTableWidget*>(QStringLiteral("interfaces"));
}

QTreeWidget* DesktopTest::objectTree() const
{
    return m_window->findChild<QTreeWidget*>(QStringLiteral("objects"));
}

QTreeWidgetItem* DesktopTest::treeItem(const Object& object) const
{
    const QTreeWidget* tree = objectTree();
    for (int group = 0; group < tree->topLevelItemCount(); ++group) {
        for (int i = 0; i < tree->topLevelItem(group)->childCount(); ++i) {
            QTreeWidgetItem* item = tree->topLevelItem(group)->child(i);
            if (item->data(0, Qt::UserRole).toInt() == object.id()) {
                return item;
            }
        }
    }
    return nullptr;
}

void whenModal(const char* className, const std::function<void(QWidget& window)>& inspect)
{
    auto* timer = new QTimer(QApplication::instance());
    QElapsedTimer since;
    since.start();
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        QWidget* const window = QApplication::activeModalWidget();
        if (window != nullptr && window->inherits(className)) {
            timer->stop();
            timer->deleteLater();
            inspect(*window);
        } else if (since.hasExpired(modalDeadlineMs)) {
            timer->stop();
            timer->deleteLater();
            ADD_FAILURE() << "no modal " << className;
        }
    });
    timer->start(modalPollMs);
}

QStringList texts(std::initializer_list<const char*> list)
{
    QStringList result;
    for (const char* text : list) {
        result.append(QLatin1String(text));
    }
    return result;
}

} // namespace zul::test
