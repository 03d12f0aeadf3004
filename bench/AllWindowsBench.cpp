// The program itself with all windows of the demo project open and at work, in real time: on the
// flight demonstration, and with the flight's bus saturated. How busy the main thread is, and how
// long the heartbeat waits at most.
//
//   bench_all_windows [SECONDS]      10, of each of the two

#include "app/Composition.h"
#include "bench/Distribution.h"
#include "bench/WindowApplication.h"
#include "comm/BatchListeners.h"
#include "comm/CanInterface.h"
#include "core/Kernel.h"
#include "core/SettingsStore.h"
#include "gui/desktop/DialogMain.h"
#include "gui/desktop/WindowDesk.h"
#include "gui/frame/FileDialogs.h"
#include "project/ObjectTransmit.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr QSize windowSize(1600, 1000);
constexpr int msAtStart = 3'000; // before the measuring begins: rows are made, windows shown
constexpr double msPerSecond = 1e3;
constexpr const char* flightName = "Flight"; // of the interface with the flight demonstration

struct Load
{
    const char* title;
    const char* scenario; ///< of the flight's interface
};

constexpr Load loads[] = {{"Flight demonstration", "1"}, {"Saturated bus", "3"}};

void waitMs(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Copies the demo's files, with what lies in folders below.
bool copyDemo(const QString& target)
{
    const QDir source(QStringLiteral(ZUL_DEMO_DIR));
    bool isCopied = QDir().mkpath(target + QStringLiteral("/traces"));
    for (const QString& name : source.entryList(QDir::Files)) {
        isCopied = QFile::copy(source.filePath(name), target + QLatin1Char('/') + name) && isCopied;
    }
    const QString trace = QStringLiteral("/traces/flight.zlb");
    return QFile::copy(source.path() + trace, target + trace) && isCopied;
}

/// The main window with every window of its project, connected to the buses.
class Program
{
public:
    explicit Program(const Load& load) : m_load(load), m_window(app::objectTypeInfos())
    {
        gui::Kernel::instance().setMainWindow(&m_window);
        waitMs(2 * gui::DialogMain::tickMs); // the first tick opens the project's windows
        m_window.resize(windowSize);
    }
    ~Program()
    {
        comm::BatchListeners::instance().remove(m_listener);
        gui::Kernel::instance().setMainWindow(nullptr);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// False if an interface cannot be connected.
    bool start()
    {
        openWindows();
        for (const auto& [id, object] : m_window.project().interfaces()) {
            auto* interface = dynamic_cast<comm::CanInterface*>(object);
            if (interface == nullptr || interface->device() == nullptr) {
                return false;
            }
            if (interface->name() == QLatin1String(flightName)) {
                interface->device()->setProperty("Scenario", m_load.scenario);
            }
            if (!interface->connect()) {
                return false;
            }
        }
        click<QToolButton>("startStop"); // of the trace
        click<QPushButton>("start");     // of the replay
        return true;
    }

    void measure(double seconds)
    {
        waitMs(msAtStart);
        m_listener = comm::BatchListeners::instance().add(
            [this](MessageContainer& batch) { takeBatch(batch); });
        const double processBefore = bench::processorMs(CLOCK_PROCESS_CPUTIME_ID);
        const double mainThreadBefore = bench::processorMs(CLOCK_THREAD_CPUTIME_ID);
        m_clock.start();
        waitMs(static_cast<int>(seconds * msPerSecond));
        m_wallMs = elapsedMs();
        m_mainThreadMs = bench::processorMs(CLOCK_THREAD_CPUTIME_ID) - mainThreadBefore;
        m_processMs = bench::processorMs(CLOCK_PROCESS_CPUTIME_ID) - processBefore;
    }

    void report()
    {
        std::printf("%s: %d windows, %.0f frames/s\n", m_load.title,
                    m_window.mdiArea().subWindowList().size(),
                    static_cast<double>(m_frames) / m_wallMs * msPerSecond);
        std::printf("  main thread %.1f %%, process %.1f %% of one core\n",
                    m_mainThreadMs / m_wallMs * 100.0, m_processMs / m_wallMs * 100.0);
        std::printf("%-40s %9s %9s %9s\n", "  milliseconds", "50 %", "99 %", "most");
        bench::printDistribution("  from one heartbeat to the next", m_gaps);
        std::fflush(stdout);
    }

private:
    void openWindows()
    {
        gui::WindowDesk& desk = m_window.desk();
        for (const auto& [id, object] : m_window.project().objects()) {
            if (auto* transmit = dynamic_cast<ObjectTransmit*>(object.get())) {
                for (auto& line : transmit->lines()) {
                    line->running = line->rate > 0 ? 1 : 0;
                }
            }
            if (desk.find(id) == nullptr) {
                desk.open(*object);
            }
        }
        m_window.mdiArea().tileSubWindows();
        gui::FileDialogs::setNextFileName(gui::Kernel::instance().home() +
                                          QStringLiteral("traces/flight.zlb"));
        click<QPushButton>("load"); // of the replay
    }

    template <typename Button>
    void click(const char* name)
    {
        for (Button* button : m_window.mdiArea().findChildren<Button*>(QLatin1String(name))) {
            button->click();
        }
    }

    // The project polls each interface once in a tick, and it tells of its batch, be it empty.
    void takeBatch(const MessageContainer& batch)
    {
        m_frames += batch.size();
        if (batch.srcDest() != flightName) {
            return;
        }
        const double now = elapsedMs();
        if (m_lastTick >= 0.0) {
            m_gaps.push_back(now - m_lastTick);
        }
        m_lastTick = now;
    }

    double elapsedMs() const { return static_cast<double>(m_clock.nsecsElapsed()) * 1e-6; }

    Load m_load;
    gui::DialogMain m_window;
    QElapsedTimer m_clock;
    int m_listener = 0;
    std::vector<double> m_gaps;
    std::uint64_t m_frames = 0;
    double m_lastTick = -1.0;
    double m_wallMs = 1.0;
    double m_processMs = 0.0;
    double m_mainThreadMs = 0.0;
};

} // namespace

int main(int argc, char** argv)
{
    const bench::WindowApplication application(argc, argv);
    constexpr double usualSeconds = 10.0;
    const double seconds = argc > 1 ? std::atof(argv[1]) : usualSeconds;
    app::registerWindowMakers();
    for (const Load& load : loads) {
        const QTemporaryDir home;
        // Profiles are found by their bare names: the program starts where they lie.
        if (!copyDemo(home.path()) || !QDir::setCurrent(home.path())) {
            std::fputs("the demo project cannot be copied\n", stderr);
            return EXIT_FAILURE;
        }
        gui::Kernel::instance().setHome(home.path() + QLatin1Char('/'));
        SettingsStore::instance().reset();
        SettingsStore::instance().setFile(home.filePath(QStringLiteral("zul.ini")));
        SettingsStore::instance().load();
        Program program(load);
        if (!program.start()) {
            std::fputs("the interfaces cannot be connected\n", stderr);
            return EXIT_FAILURE;
        }
        program.measure(seconds);
        program.report();
        QDir::setCurrent(QDir::rootPath()); // the folder goes
    }
    return EXIT_SUCCESS;
}
