// How true a replay is: a recorded trace is played onto a virtual bus, in real time, and what
// another interface of the bus receives is held against the file.
//
//   bench_replay [SECONDS [FRAMES A SECOND]]      10, 2000

#include "bench/Distribution.h"
#include "bench/WindowApplication.h"
#include "comm/BatchListeners.h"
#include "comm/CanInterface.h"
#include "gui/frame/FileDialogs.h"
#include "gui/traffic/DialogReplay.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectReplay.h"
#include "project/Project.h"
#include "traffic/TraceFiles.h"

#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

using zul::MessageCan;

constexpr int heartbeatMs = 50;
constexpr unsigned seed = 825;
constexpr std::uint32_t mostIdentifier = 0x1FFFFFFF;

struct Options
{
    double seconds = 10.0;
    double framesPerSecond = 2'000.0;
};

/// Frames at random times, as many a second on the average as wanted.
std::vector<MessageCan> makeFrames(const Options& options)
{
    std::mt19937 generator(seed);
    std::exponential_distribution<double> distance(options.framesPerSecond);
    std::uniform_int_distribution<std::uint32_t> identifier(0, mostIdentifier);
    std::vector<MessageCan> frames;
    for (double time = 0.0; time < options.seconds; time += distance(generator)) {
        MessageCan& frame = frames.emplace_back();
        frame.setId(identifier(generator));
        frame.setMode(MessageCan::EMsgMode::Extended);
        frame.setByteCount(zul::MessageData::size / 8);
        frame.setTimeStamp(1'000.0 + time);
        for (int i = 0; i < 8; ++i) {
            frame.msg()[i] = static_cast<std::uint8_t>(generator());
        }
    }
    return frames;
}

bool isSame(const MessageCan& left, const MessageCan& right)
{
    bool isAlike = left.id() == right.id() && left.byteCount() == right.byteCount() &&
                   left.frameType() == right.frameType();
    for (int i = 0; i < 8; ++i) {
        isAlike = isAlike && left.msg()[i] == right.msg()[i];
    }
    return isAlike;
}

/// A replay onto one interface, heard by another.
class Rig
{
public:
    explicit Rig(const Options& options)
        : m_frames(makeFrames(options)),
          m_project({comm::CanInterface::typeInfo(), ObjectReplay::typeInfo()}, QString())
    {
        comm::BatchListeners::instance().add([this](MessageContainer& batch) { hear(batch); });
    }
    ~Rig() { comm::BatchListeners::instance().clear(); }
    Rig(const Rig&) = delete;
    Rig& operator=(const Rig&) = delete;

    bool run()
    {
        TraceFiles files;
        const QString path = m_directory.filePath(QStringLiteral("flight"));
        if (!connectInterface("Out") || !connectInterface("In") ||
            !files.open(path.toLatin1().toStdString(), QDateTime::currentDateTime())) {
            return false;
        }
        std::string line;
        for (const MessageCan& frame : m_frames) {
            line.clear();
            files.write(frame, line);
        }
        files.close();
        play(path + QLatin1String(TraceFiles::binarySuffix));
        return true;
    }

    /// Prints the result; true if every frame came as it was.
    bool report() const
    {
        std::size_t same = 0;
        std::vector<double> errors;
        for (std::size_t i = 0; i < std::min(m_heard.size(), m_frames.size()); ++i) {
            same += isSame(m_heard[i], m_frames[i]) ? 1U : 0U;
            const double heard = m_heard[i].timeStampDouble() - m_heard[0].timeStampDouble();
            const double told = m_frames[i].timeStampDouble() - m_frames[0].timeStampDouble();
            errors.push_back(std::abs(heard - told) * 1e3);
        }
        std::printf("%zu frames recorded, %zu heard, %zu the same and in the same place\n",
                    m_frames.size(), m_heard.size(), same);
        std::printf("%-40s %9s %9s %9s\n", "Milliseconds", "50 %", "99 %", "most");
        bench::printDistribution("off the recorded time from the first frame", errors);
        return same == m_frames.size() && m_heard.size() == m_frames.size();
    }

private:
    bool connectInterface(const char* name)
    {
        auto* interface =
            dynamic_cast<comm::CanInterface*>(m_project.createObject(ObjectType::CanInterface));
        if (interface == nullptr || !interface->selectDevice("libCanVirtual")) {
            return false;
        }
        interface->device()->setProperty("InterfaceName", name);
        interface->device()->setProperty("BusName", "Bench");
        interface->setName(QString::fromLatin1(name));
        return interface->connect();
    }

    void play(const QString& path)
    {
        auto* object = dynamic_cast<ObjectReplay*>(m_project.createObject(ObjectType::Replay));
        object->settings().outputInterface = QStringLiteral("Out");
        gui::DialogReplay window(object, nullptr);
        window.show();
        QTimer heartbeat;
        QObject::connect(&heartbeat, &QTimer::timeout, &window, [&] {
            m_project.poll();
            if (window.replay().state() == Replay::State::Stopped) {
                QApplication::quit();
            }
        });
        gui::FileDialogs::setNextFileName(path);
        window.findChild<QPushButton*>(QStringLiteral("load"))->click();
        window.findChild<QPushButton*>(QStringLiteral("start"))->click();
        heartbeat.start(heartbeatMs);
        QApplication::exec();
        heartbeat.start(heartbeatMs); // what is still on the bus
        QTimer::singleShot(10 * heartbeatMs, &window, &QApplication::quit);
        QApplication::exec();
    }

    void hear(const MessageContainer& batch)
    {
        if (batch.srcDest() != "In") {
            return;
        }
        for (const auto& message : batch.messages()) {
            if (const auto* frame = message_cast<MessageCan>(message.get())) {
                m_heard.push_back(*frame);
            }
        }
    }

    std::vector<MessageCan> m_frames;
    std::vector<MessageCan> m_heard;
    QTemporaryDir m_directory;
    Project m_project;
};

} // namespace

int main(int argc, char** argv)
{
    const bench::WindowApplication application(argc, argv);
    Options options;
    if (argc > 1) {
        options.seconds = std::atof(argv[1]);
    }
    if (argc > 2) {
        options.framesPerSecond = std::atof(argv[2]);
    }
    Rig rig(options);
    if (!rig.run()) {
        std::fputs("the interfaces cannot be connected\n", stderr);
        return EXIT_FAILURE;
    }
    return rig.report() ? EXIT_SUCCESS : EXIT_FAILURE;
}
