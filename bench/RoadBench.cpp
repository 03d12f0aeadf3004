// The road of a frame: from the device through the interface to the objects, and its end.

#include "bench/BenchMain.h"
#include "comm/CanInterface.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectReceive.h"
#include "project/ObjectWindow.h"

#include <QCoreApplication>

#include <array>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <thread>

namespace {

constexpr std::size_t objectCount = 9;
constexpr const char* moduleName = "libCanBench";

/// Notes the size of each batch and does nothing else.
class CountingWindow : public ObjectWindow
{
public:
    void setObject(Object*) override {}
    void receive(MessageContainer& batch) override { m_frames += batch.size(); }
    void updateDialog() override {}

    std::uint64_t frames() const { return m_frames; }

private:
    std::uint64_t m_frames = 0;
};

/// A connected interface with nine objects behind it.
class Road
{
public:
    Road()
    {
        for (std::size_t i = 0; i < objectCount; ++i) {
            m_objects[i].setDialog(&m_windows[i]);
            m_interface.addOutput(&m_objects[i]);
        }
        m_ready = m_interface.selectDevice(moduleName) && m_interface.connect();
    }

    ~Road()
    {
        m_interface.disconnect();
        m_interface.selectDevice({});
        for (ObjectReceive& object : m_objects) {
            object.setDialog(nullptr);
        }
    }

    Road(const Road&) = delete;
    Road& operator=(const Road&) = delete;

    bool isReady() const { return m_ready; }
    /// What each draining by the calling thread gets from now on.
    void order(std::int64_t frames)
    {
        m_interface.device()->setProperty("Give", std::to_string(frames));
    }
    void drain() { m_interface.link().drain(); }
    void poll() { m_interface.poll(); }
    /// Frames that the last of the objects got so far.
    std::uint64_t framesArrived() const { return m_windows.back().frames(); }

private:
    comm::CanInterface m_interface;
    std::array<ObjectReceive, objectCount> m_objects;
    std::array<CountingWindow, objectCount> m_windows;
    bool m_ready = false;
};

/// Drains on a thread of its own, one batch whenever it is asked, as an interface's reader does.
class Drainer
{
public:
    Drainer(Road& road, std::int64_t frames)
        : m_road(road), m_frames(frames), m_thread([this] { run(); })
    {
    }

    ~Drainer()
    {
        setState(State::End);
        m_thread.join();
    }

    Drainer(const Drainer&) = delete;
    Drainer& operator=(const Drainer&) = delete;

    void drainOnce()
    {
        setState(State::Wanted);
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_state == State::Idle; });
    }

private:
    enum class State { Idle, Wanted, End };

    void setState(State state)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_state = state;
        }
        m_changed.notify_all();
    }

    void run()
    {
        m_road.order(m_frames);
        for (;;) {
            {
                std::unique_lock<std::mutex> lock(m_mutex);
                m_changed.wait(lock, [this] { return m_state != State::Idle; });
                if (m_state == State::End) {
                    return;
                }
            }
            m_road.drain();
            setState(State::Idle);
        }
    }

    Road& m_road;
    std::int64_t m_frames;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    State m_state = State::Idle;
    std::thread m_thread;
};

/// The one road of all benchmarks; null if the module is not there. Its load estimator looks back
/// over one second of bus time, as it does on a busy bus.
Road* road()
{
    static Road instance;
    return instance.isReady() ? &instance : nullptr;
}

// Runs `turn`, which sends one batch down the road, and looks whether all of it arrived.
template <typename Turn>
void measure(benchmark::State& state, Turn turn)
{
    const std::uint64_t arrivedBefore = road()->framesArrived();
    for ([[maybe_unused]] auto _ : state) {
        turn();
    }
    const std::uint64_t arrived = road()->framesArrived() - arrivedBefore;
    if (arrived != static_cast<std::uint64_t>(state.range(0) * state.iterations())) {
        state.SkipWithError("frames got lost on the road");
    }
    bench::setItems(state, state.range(0));
}

void roadOfAFrame(benchmark::State& state)
{
    Road& used = *road();
    used.order(state.range(0));
    measure(state, [&used] {
        used.drain();
        used.poll();
    });
}

// As in the program: messages are made on the reader's thread and freed on the main one.
void roadOverTwoThreads(benchmark::State& state)
{
    Road& used = *road();
    Drainer drainer(used, state.range(0));
    measure(state, [&] {
        drainer.drainOnce();
        used.poll();
    });
}

// The least that a frame can cost: message and control block made, and freed at once.
void makeAndFree(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        const SmartPtr<Message> message(new zul::MessageCan);
        benchmark::DoNotOptimize(message.get());
    }
    bench::setItems(state, 1);
}

// The same for a batch whose messages live together, as they do on the road.
void makeAndFreeBatch(benchmark::State& state)
{
    const auto frames = static_cast<std::size_t>(state.range(0));
    std::vector<SmartPtr<Message>> messages;
    messages.reserve(frames);
    for ([[maybe_unused]] auto _ : state) {
        for (std::size_t i = 0; i < frames; ++i) {
            messages.emplace_back(new zul::MessageCan);
        }
        benchmark::DoNotOptimize(messages.data());
        messages.clear();
    }
    bench::setItems(state, state.range(0));
}

BENCHMARK(makeAndFree);
BENCHMARK(makeAndFreeBatch)->Arg(1)->Arg(400)->Arg(10'000);
BENCHMARK(roadOfAFrame)->Arg(1)->Arg(400)->Arg(10'000);
BENCHMARK(roadOverTwoThreads)->Arg(400)->Arg(10'000)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv); // the module registry asks where it lies
    if (road() == nullptr) {
        std::fputs("no device of the module libCanBench\n", stderr);
        return 1;
    }
    constexpr double target = 2.5;
    return bench::runBenchmarks(
        argc, argv,
        {{"roadOfAFrame/1", "makeAndFree", 0.0},
         {"roadOfAFrame/400", "makeAndFree", target},
         {"roadOfAFrame/10000", "makeAndFree", target},
         {"roadOfAFrame/1", "makeAndFreeBatch/1", 0.0},
         {"roadOfAFrame/400", "makeAndFreeBatch/400", target},
         {"roadOfAFrame/10000", "makeAndFreeBatch/10000", target},
         {"roadOverTwoThreads/400/real_time", "makeAndFreeBatch/400", 0.0},
         {"roadOverTwoThreads/10000/real_time", "makeAndFreeBatch/10000", 0.0}});
}
