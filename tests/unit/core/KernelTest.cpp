#include "core/Kernel.h"

#include "core/Clock.h"
#include "core/Console.h"
#include "core/DirectoryListing.h"
#include "core/Observer.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QDir>

#include <chrono>
#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace zul::test;

TEST(Kernel, HomeIsBelowTheDirectoryOfTheVariable)
{
    const EnvironmentVariable appData("appdata", "/users/me");
    ConsoleCapture console;
    const gui::Kernel kernel;
    EXPECT_EQ(console.out(), "HOME: </users/me>\n");
    EXPECT_EQ(kernel.home(), QStringLiteral("/users/me/ZUL/"));
}

TEST(Kernel, HomeWithoutTheVariableIsTheWorkingDirectory)
{
    const EnvironmentVariable appData("appdata", nullptr);
    ConsoleCapture console;
    const gui::Kernel kernel;
    EXPECT_EQ(console.out(), "");
    EXPECT_EQ(kernel.home(), QStringLiteral("./"));
}

TEST(Kernel, EmptyVariableCountsAsSet)
{
    const EnvironmentVariable appData("appdata", "");
    ConsoleCapture console;
    const gui::Kernel kernel;
    EXPECT_EQ(console.out(), "HOME: <>\n");
    EXPECT_EQ(kernel.home(), QStringLiteral("/ZUL/"));
}

TEST(Kernel, HomeIsNotCreated)
{
    const TestHome home;
    const EnvironmentVariable appData("appdata", home.path().toLocal8Bit());
    const ConsoleCapture console;
    const gui::Kernel kernel;
    EXPECT_FALSE(QDir(kernel.home()).exists());
}

TEST(Kernel, HomeIsFixedWhenTheKernelIsMade)
{
    const ConsoleCapture console;
    const EnvironmentVariable appData("appdata", "/one");
    const gui::Kernel kernel;
    const EnvironmentVariable later("appdata", "/two");
    EXPECT_EQ(kernel.home(), QStringLiteral("/one/ZUL/"));
}

TEST(Kernel, PointersPassThroughAndStylesStayNull)
{
    const ConsoleCapture console;
    gui::Kernel kernel;
    EXPECT_EQ(kernel.mainWindow(), nullptr);
    EXPECT_EQ(kernel.application(), nullptr);
    EXPECT_EQ(kernel.project(), nullptr);
    EXPECT_EQ(kernel.style1(), nullptr);
    EXPECT_EQ(kernel.style2(), nullptr);
    int anything = 0;
    kernel.setProject(reinterpret_cast<Project*>(&anything));
    kernel.setMainWindow(reinterpret_cast<gui::DialogMain*>(&anything));
    kernel.setApplication(reinterpret_cast<QApplication*>(&anything));
    EXPECT_EQ(static_cast<void*>(kernel.project()), &anything);
    EXPECT_EQ(static_cast<void*>(kernel.mainWindow()), &anything);
    EXPECT_EQ(static_cast<void*>(kernel.application()), &anything);
}

TEST(Kernel, IsTheObservableSubject)
{
    class Counter : public gui::Observer
    {
    public:
        void update(gui::ObserverModel*, int) override { ++calls; }
        int calls = 0;
    };
    const ConsoleCapture console;
    gui::Kernel kernel;
    Counter counter;
    counter.observe(&kernel, gui::Kernel::interfacesAspect);
    kernel.notify(1);
    EXPECT_EQ(counter.calls, 1);
}

TEST(Kernel, ThereIsOneOfTheProcess)
{
    const ConsoleCapture console;
    EXPECT_EQ(&gui::Kernel::instance(), &gui::Kernel::instance());
}

TEST(Clock, GivesSecondsWithMillisecondResolution)
{
    const auto system = [] {
        using Seconds = std::chrono::duration<double>;
        return Seconds(std::chrono::system_clock::now().time_since_epoch()).count();
    };
    const double before = system();
    const double now = zul::wallClock();
    const double after = system();
    EXPECT_GE(now, before - 0.0011);
    EXPECT_LE(now, after + 0.0001);
    EXPECT_NEAR(now * 1000.0, std::round(now * 1000.0), 1e-3);
}

TEST(Clock, CanBeSetWhileATestWantsIt)
{
    {
        SettableClock clock(5.0);
        EXPECT_DOUBLE_EQ(zul::wallClock(), 5.0);
        clock.advance(0.25);
        EXPECT_DOUBLE_EQ(zul::wallClock(), 5.25);
        clock.set(-1.0);
        EXPECT_DOUBLE_EQ(zul::wallClock(), -1.0);
    }
    EXPECT_GT(zul::wallClock(), 1e9);
}

TEST(Console, PrintGoesToStandardOutputAndErrorsToStandardError)
{
    ConsoleCapture console;
    zul::print("%d <%s>\n", 5, "a");
    zul::printError("%c\n", 'e');
    EXPECT_EQ(console.out(), "5 <a>\n");
    EXPECT_EQ(console.err(), "e\n");
}

TEST(DirectoryListing, NamesWithAPointInByteOrder)
{
    const TestHome home;
    for (const char* name : {"b.so", "B.so", "a.txt", ".hidden", "nopoint", "a.b.c"}) {
        home.write(QString::fromLatin1(name), "");
    }
    ASSERT_TRUE(QDir(home.path()).mkdir(QStringLiteral("directory.so")));
    QStringList expected;
    for (const char* name : {".hidden", "B.so", "a.b.c", "a.txt", "b.so"}) {
        expected << QString::fromLatin1(name);
    }
    EXPECT_EQ(zul::fileNamesWithPoint(home.path()), expected);
}

TEST(DirectoryListing, UnreadableDirectoryIsEmpty)
{
    const TestHome home;
    home.write(QStringLiteral("file.so"), "");
    EXPECT_TRUE(zul::fileNamesWithPoint(QStringLiteral("/nowhere")).isEmpty());
    EXPECT_TRUE(zul::fileNamesWithPoint(home.file(QStringLiteral("file.so"))).isEmpty());
}

} // namespace
