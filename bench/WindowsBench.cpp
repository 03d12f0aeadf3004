// The traffic windows on a saturated bus, in real time: how busy the main thread is, and how long
// a key takes to reach an editor.
//
//   bench_windows [SECONDS]      20

#include "app/Composition.h"
#include "bench/Distribution.h"
#include "bench/WindowApplication.h"
#include "comm/BatchListeners.h"
#include "comm/CanInterface.h"
#include "core/SettingsStore.h"
#include "gui/desktop/DialogMain.h"
#include "gui/desktop/WindowDesk.h"
#include "gui/frame/DialogSelectId.h"
#include "gui/frame/FileDialogs.h"
#include "message/MessageCan.h"
#include "project/ObjectReceive.h"
#include "project/ObjectReplay.h"
#include "project/ObjectTrace.h"
#include "project/ObjectTransmit.h"
#include "project/ObjectWindow.h"
#include "project/Project.h"
#include "traffic/TraceFiles.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>
#include <vector>

namespace {

constexpr QSize windowSize(1024, 768);
constexpr double secondsAtStart = 3.0; // before the measuring begins: rows are made, windows shown
constexpr int keyPeriodMs = 97;
constexpr int saturated = 3; // scenario: frames of 8 bytes without a gap
constexpr int lineCount = 16;
constexpr int linePeriodMs = 10;
constexpr double replayedPerSecond = 500.0;

/// A project with all traffic windows, driven as the main window does it.
class Rig : public QObject
{
public:
    explicit Rig(double seconds)
        : m_seconds(seconds),
          m_project(app::objectTypeInfos(), QString()),
          m_area(new QMdiArea(&m_window)),
          m_desk(*m_area, m_project, QKeySequence(), &m_window)
    {
        m_window.setCentralWidget(m_area);
        m_window.resize(windowSize);
        m_window.show();
        m_heartbeat.setSingleShot(true);
        connect(&m_heartbeat, &QTimer::timeout, this, &Rig::tick);
        gui::DialogSelectId::instance(); // it hears every batch, as in the program
        SettingsStore::instance().setString(QStringLiteral("TracePath"), m_directory.path());
    }
    ~Rig() override
    {
        m_isOver = true;
        if (m_typist != nullptr) {
            m_typist->join();
        }
        gui::DialogSelectId::destroy();
    }
    Rig(const Rig&) = delete;
    Rig& operator=(const Rig&) = delete;

    bool build()
    {
        if (addInterface("Bus", saturated) == nullptr || addInterface("Out", 0) == nullptr) {
            return false;
        }
        open(make<ObjectReceive>(ObjectType::Receive));
        addTransmit();
        addTrace();
        addReplay();
        m_area->tileSubWindows();
        return m_editor != nullptr;
    }

    bool start()
    {
        for (const auto& [id, interface] : m_project.interfaces()) {
            auto* can = dynamic_cast<comm::CanInterface*>(interface);
            if (can == nullptr || !can->connect()) {
                return false;
            }
        }
        m_clock.start();
        m_heartbeat.start(gui::DialogMain::firstTickMs);
        m_editor->installEventFilter(this);
        m_typist = std::make_unique<std::thread>([this] { typeKeys(); });
        return true;
    }

    void report() const
    {
        std::printf("%-40s %9s %9s %9s\n", "Milliseconds", "50 %", "99 %", "most");
        bench::printDistribution("work of a tick", m_work);
        bench::printDistribution("from one tick's start to the next's", m_distances);
        bench::printDistribution("from a key to its painted letter", m_delays);
        std::printf("%.0f frames/s; processor: process %.1f %%, main thread %.1f %% of one\n",
                    static_cast<double>(m_frames) / m_wallMs * 1e3, m_processMs / m_wallMs * 100.0,
                    m_mainThreadMs / m_wallMs * 100.0);
    }

private:
    template <typename T>
    T& make(ObjectType type)
    {
        return static_cast<T&>(*m_project.createObject(type));
    }

    QWidget* open(Object& object)
    {
        m_desk.open(object);
        return dynamic_cast<QWidget*>(object.dialog());
    }

    comm::CanInterface* addInterface(const char* name, int scenario)
    {
        auto& interface = make<comm::CanInterface>(ObjectType::CanInterface);
        if (!interface.selectDevice("libCanVirtual")) {
            return nullptr;
        }
        interface.device()->setProperty("InterfaceName", name);
        interface.device()->setProperty("BusName", name);
        interface.device()->setProperty("Scenario", std::to_string(scenario));
        interface.setName(QString::fromLatin1(name));
        return &interface;
    }

    // A line that nobody sends, whose name is typed into, and others that go out all the time.
    void addTransmit()
    {
        auto& object = make<ObjectTransmit>(ObjectType::Transmit);
        object.settings().outputInterface = QStringLiteral("Out");
        for (int i = 0; i < lineCount; ++i) {
            auto& line = *object.lines().emplace_back(std::make_unique<SendMsg>());
            line.id = static_cast<std::uint32_t>(i);
            line.byteCount = 8;
            line.rate = linePeriodMs;
            line.running = i > 0 ? 1 : 0;
        }
        QWidget* window = open(object);
        for (auto* edit : window->findChildren<QLineEdit*>()) {
            if (m_editor == nullptr && edit->isEnabled() && edit->toolTip() == payloadToolTip) {
                m_editor = edit;
            }
        }
    }

    void addTrace()
    {
        QWidget* window = open(make<ObjectTrace>(ObjectType::Trace));
        window->findChild<QToolButton*>(QStringLiteral("startStop"))->click();
    }

    void addReplay()
    {
        auto& object = make<ObjectReplay>(ObjectType::Replay);
        object.settings().outputInterface = QStringLiteral("Out");
        object.settings().autoRepeat = true;
        const QString path = m_directory.filePath(QStringLiteral("flight"));
        TraceFiles files;
        if (files.open(path.toLatin1().toStdString(), QDateTime::currentDateTime())) {
            std::string line;
            for (int i = 0; i < static_cast<int>(replayedPerSecond); ++i) {
                zul::MessageCan frame;
                frame.setTimeStamp(i / replayedPerSecond);
                frame.setByteCount(8);
                line.clear();
                files.write(frame, line);
            }
            files.close();
        }
        QWidget* window = open(object);
        gui::FileDialogs::setNextFileName(path + QLatin1String(TraceFiles::binarySuffix));
        window->findChild<QPushButton*>(QStringLiteral("load"))->click();
        window->findChild<QPushButton*>(QStringLiteral("start"))->click();
    }

    double elapsedMs() const { return static_cast<double>(m_clock.nsecsElapsed()) * 1e-6; }

    bool isMeasuring() const { return m_measureStart > 0.0; }

    void tick()
    {
        const double now = elapsedMs();
        m_project.poll();
        if (isMeasuring()) {
            m_work.push_back(elapsedMs() - now);
            m_distances.push_back(now - m_lastTick);
        } else if (now > secondsAtStart * 1e3) {
            beginMeasuring(now);
        }
        m_lastTick = now;
        if (isMeasuring() && now - m_measureStart > m_seconds * 1e3) {
            finish(now);
        } else {
            m_heartbeat.start(gui::DialogMain::tickMs);
        }
    }

    void beginMeasuring(double now)
    {
        m_measureStart = now;
        m_processMs = bench::processorMs(CLOCK_PROCESS_CPUTIME_ID);
        m_mainThreadMs = bench::processorMs(CLOCK_THREAD_CPUTIME_ID);
        comm::BatchListeners::instance().add([this](MessageContainer& batch) {
            m_frames += batch.srcDest() == "Bus" ? batch.size() : 0U;
        });
    }

    void finish(double now)
    {
        m_wallMs = now - m_measureStart;
        m_processMs = bench::processorMs(CLOCK_PROCESS_CPUTIME_ID) - m_processMs;
        m_mainThreadMs = bench::processorMs(CLOCK_THREAD_CPUTIME_ID) - m_mainThreadMs;
        comm::BatchListeners::instance().clear();
        QApplication::quit();
    }

    // Keys come from a thread of their own, as they do from the display's server: they wait behind
    // whatever the main thread is at.
    void typeKeys()
    {
        for (int count = 0; !m_isOver; ++count) {
            std::this_thread::sleep_for(std::chrono::milliseconds(keyPeriodMs));
            if (m_pressedNs != 0) {
                continue; // the last one has not been painted yet
            }
            const bool isOdd = count % 2 != 0;
            const int key = isOdd ? Qt::Key_1 : Qt::Key_2;
            const QString letter = isOdd ? QStringLiteral("1") : QStringLiteral("2");
            m_pressedNs = m_clock.nsecsElapsed();
            QApplication::postEvent(
                m_editor, new QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier));
            for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QApplication::postEvent(m_editor, new QKeyEvent(type, key, Qt::NoModifier, letter));
            }
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_editor && event->type() == QEvent::KeyRelease && m_pressedNs != 0) {
            m_editor->repaint();
            if (isMeasuring()) {
                const auto waited = static_cast<double>(m_clock.nsecsElapsed() - m_pressedNs);
                m_delays.push_back(waited * 1e-6);
            }
            m_pressedNs = 0;
        }
        return false;
    }

    static inline const QString payloadToolTip = QStringLiteral("Message Payload");

    double m_seconds;
    QTemporaryDir m_directory;
    Project m_project;
    QMainWindow m_window;
    QMdiArea* m_area;
    gui::WindowDesk m_desk;
    QTimer m_heartbeat;
    QElapsedTimer m_clock;
    std::unique_ptr<std::thread> m_typist;
    std::atomic<bool> m_isOver{false};
    std::atomic<qint64> m_pressedNs{0}; // 0 once it has been painted
    QLineEdit* m_editor = nullptr;
    std::vector<double> m_work;
    std::vector<double> m_distances;
    std::vector<double> m_delays;
    std::uint64_t m_frames = 0;
    double m_lastTick = 0.0;
    double m_measureStart = 0.0;
    double m_wallMs = 1.0;
    double m_processMs = 0.0;
    double m_mainThreadMs = 0.0;
};

} // namespace

int main(int argc, char** argv)
{
    const bench::WindowApplication application(argc, argv);
    app::registerWindowMakers();
    constexpr double usualSeconds = 20.0;
    Rig rig(argc > 1 ? std::atof(argv[1]) : usualSeconds);
    if (!rig.build() || !rig.start()) {
        std::fputs("the windows cannot be made or the interfaces not be connected\n", stderr);
        return EXIT_FAILURE;
    }
    QApplication::exec();
    rig.report();
    return EXIT_SUCCESS;
}
