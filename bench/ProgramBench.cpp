// The program's own libraries under the largest load that its buses can make: saturated interfaces,
// each with a Receive window, for some seconds of real time.
//
//   bench_program [SCENARIO [SECONDS [INTERFACES]]]      3 or 4, 20, 8

#include "app/Composition.h"
#include "bench/Distribution.h"
#include "bench/SequenceCheck.h"
#include "bench/WindowApplication.h"
#include "comm/BatchListeners.h"
#include "comm/CanInterface.h"
#include "gui/desktop/DialogMain.h"
#include "gui/desktop/WindowDesk.h"
#include "project/ObjectReceive.h"
#include "project/Project.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeySequence>
#include <QMainWindow>
#include <QMdiArea>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <vector>

namespace {

constexpr QSize windowSize(1024, 768);
constexpr double millisecondsPerSecond = 1'000.0;

struct Options
{
    bench::Sequence sequence = bench::Sequence::Identifier;
    double seconds = 20.0;
    int interfaces = 8;
};

/// A project of saturated interfaces with a window on each, driven as the main window does it.
class Load : public QObject
{
public:
    explicit Load(const Options& options)
        : m_options(options),
          m_project(app::objectTypeInfos(), QString()),
          m_area(new QMdiArea(&m_window)),
          m_desk(*m_area, m_project, QKeySequence(), &m_window)
    {
        m_window.setCentralWidget(m_area);
        m_window.resize(windowSize);
        m_window.show();
        m_heartbeat.setSingleShot(true);
        connect(&m_heartbeat, &QTimer::timeout, this, &Load::tick);
        comm::BatchListeners::instance().add([this](MessageContainer& batch) { takeBatch(batch); });
    }

    ~Load() override { comm::BatchListeners::instance().clear(); }

    Load(const Load&) = delete;
    Load& operator=(const Load&) = delete;

    /// False if a device cannot be made or opened.
    bool build()
    {
        for (int i = 1; i <= m_options.interfaces; ++i) {
            if (!addInterface("Load " + std::to_string(i))) {
                return false;
            }
        }
        m_area->tileSubWindows();
        return true;
    }

    bool start()
    {
        for (comm::CanInterface* interface : m_interfaces) {
            if (!interface->connect()) {
                return false;
            }
        }
        m_clock.start();
        m_processAtStart = bench::processorMs(CLOCK_PROCESS_CPUTIME_ID);
        m_mainThreadAtStart = bench::processorMs(CLOCK_THREAD_CPUTIME_ID);
        m_heartbeat.start(gui::DialogMain::firstTickMs);
        return true;
    }

    /// Prints the result; true if nothing is missing.
    bool report() const;

private:
    bool addInterface(const std::string& name)
    {
        auto* interface =
            dynamic_cast<comm::CanInterface*>(m_project.createObject(ObjectType::CanInterface));
        auto* receive = dynamic_cast<ObjectReceive*>(m_project.createObject(ObjectType::Receive));
        if (interface == nullptr || receive == nullptr ||
            !interface->selectDevice("libCanVirtual")) {
            return false;
        }
        Device* device = interface->device();
        device->setProperty("InterfaceName", name);
        device->setProperty("BusName", name);
        device->setProperty("Scenario", std::to_string(static_cast<int>(m_options.sequence)));
        interface->setName(QString::fromLatin1(name.c_str()));
        receive->setName(interface->name());
        receive->settings().inputInterface = interface->name();
        m_desk.open(*receive);
        m_interfaces.push_back(interface);
        m_checks.emplace(name, bench::SequenceCheck(m_options.sequence));
        return true;
    }

    void takeBatch(const MessageContainer& batch)
    {
        const auto found = m_checks.find(batch.srcDest());
        if (found != m_checks.end()) {
            found->second.take(batch);
        }
    }

    void tick()
    {
        const double now = elapsedMs();
        if (m_lastTick >= 0.0) {
            m_distances.push_back(now - m_lastTick);
        }
        m_lastTick = now;
        const double processorBefore = bench::processorMs(CLOCK_THREAD_CPUTIME_ID);
        m_project.poll();
        m_work.push_back(elapsedMs() - now);
        m_processorWork.push_back(bench::processorMs(CLOCK_THREAD_CPUTIME_ID) - processorBefore);
        if (now >= m_options.seconds * millisecondsPerSecond) {
            finish();
        } else {
            m_heartbeat.start(gui::DialogMain::tickMs);
        }
    }

    void finish()
    {
        m_wallMs = elapsedMs();
        m_processMs = bench::processorMs(CLOCK_PROCESS_CPUTIME_ID) - m_processAtStart;
        m_mainThreadMs = bench::processorMs(CLOCK_THREAD_CPUTIME_ID) - m_mainThreadAtStart;
        for (comm::CanInterface* interface : m_interfaces) {
            interface->disconnect();
        }
        m_project.poll(); // what the devices still had
        QApplication::quit();
    }

    double elapsedMs() const { return static_cast<double>(m_clock.nsecsElapsed()) * 1e-6; }

    Options m_options;
    Project m_project;
    QMainWindow m_window;
    QMdiArea* m_area;
    gui::WindowDesk m_desk;
    QTimer m_heartbeat;
    QElapsedTimer m_clock;
    std::vector<comm::CanInterface*> m_interfaces;
    std::map<std::string, bench::SequenceCheck> m_checks;
    std::vector<double> m_work;
    std::vector<double> m_processorWork;
    std::vector<double> m_distances;
    double m_lastTick = -1.0;
    double m_processAtStart = 0.0;
    double m_mainThreadAtStart = 0.0;
    double m_wallMs = 0.0;
    double m_processMs = 0.0;
    double m_mainThreadMs = 0.0;
};

bool Load::report() const
{
    std::printf("\n%-10s %10s %8s %10s %10s %10s %16s %12s\n", "Interface", "frames", "missing",
                "misplaced", "frames/s", "frames/bus", "lost by device", "skipped [s]");
    std::uint64_t frames = 0;
    std::uint64_t missing = 0;
    for (const auto& [name, check] : m_checks) {
        const auto count = static_cast<double>(check.frames());
        std::printf("%-10s %10llu %8llu %10llu %10.0f %10.0f %16s %12s\n", name.c_str(),
                    static_cast<unsigned long long>(check.frames()),
                    static_cast<unsigned long long>(check.missing()),
                    static_cast<unsigned long long>(check.misplaced()),
                    count / m_wallMs * millisecondsPerSecond, count / check.busSeconds(),
                    check.lostByDevice().c_str(), check.skippedSeconds().c_str());
        frames += check.frames();
        missing += check.missing() + check.misplaced();
        missing += check.frames() == 0 || check.lostByDevice() != "0" ? 1U : 0U;
    }
    std::printf("All %llu frames in %.1f s: %.0f frames/s, %s\n\n",
                static_cast<unsigned long long>(frames), m_wallMs / millisecondsPerSecond,
                static_cast<double>(frames) / m_wallMs * millisecondsPerSecond,
                missing == 0 ? "none lost" : "FRAMES LOST");
    std::printf("%-40s %9s %9s %9s\n", "Milliseconds", "50 %", "99 %", "most");
    bench::printDistribution("work of a tick", m_work);
    bench::printDistribution("processor time of a tick's work", m_processorWork);
    bench::printDistribution("from one tick's start to the next's", m_distances);
    std::printf("%zu ticks; processor: process %.1f %%, main thread %.1f %% of one\n",
                m_work.size(), m_processMs / m_wallMs * 100.0, m_mainThreadMs / m_wallMs * 100.0);
    return missing == 0;
}

Options parse(int argc, char** argv)
{
    Options options;
    if (argc > 1) {
        options.sequence = std::atoi(argv[1]) == static_cast<int>(bench::Sequence::Payload)
                               ? bench::Sequence::Payload
                               : bench::Sequence::Identifier;
    }
    if (argc > 2) {
        options.seconds = std::atof(argv[2]);
    }
    if (argc > 3) {
        options.interfaces = std::atoi(argv[3]);
    }
    return options;
}

} // namespace

int main(int argc, char** argv)
{
    const bench::WindowApplication application(argc, argv);
    app::registerWindowMakers();
    Load load(parse(argc, argv));
    if (!load.build() || !load.start()) {
        std::fputs("the interfaces cannot be connected\n", stderr);
        return EXIT_FAILURE;
    }
    QApplication::exec();
    return load.report() ? EXIT_SUCCESS : EXIT_FAILURE;
}
