#include "bench/BenchMain.h"
#include "message/MessageInterface.h"
#include "modules/network/Cannelloni.h"
#include "modules/network/NetworkDevice.h"
#include "modules/network/UdpSocket.h"

#include <algorithm>
#include <atomic>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <thread>

// Frames there and back over the loopback interface: through two devices of the network module, and
// the same datagrams through a plain echo. A burst goes out at once, and the next one follows when
// it is back, or lost.

namespace {

using namespace cannetwork;
using Clock = std::chrono::steady_clock;

constexpr std::uint32_t burst = 1'000;
constexpr std::chrono::milliseconds lossAfter(200); // without a frame
constexpr std::uint16_t portA = 21'001;
constexpr std::uint16_t portB = 21'002;

BusFrame frameOf(std::uint32_t number)
{
    BusFrame frame;
    frame.id = number & maxExtendedId;
    frame.mode = FrameMode::Extended;
    frame.byteCount = 8;
    return frame;
}

std::uint64_t sentFrames = 0;
std::uint64_t lostFrames = 0;

void report(benchmark::State& state, std::uint64_t sent, std::uint64_t back)
{
    bench::setItems(state, burst);
    lostFrames += sent - back;
    sentFrames += sent;
}

/// A thread that runs until the end of the scope.
class Companion
{
public:
    template <typename Step>
    explicit Companion(Step step)
        : m_thread([this, step] {
              while (!m_stop) {
                  step();
              }
          })
    {
    }
    ~Companion()
    {
        m_stop = true;
        m_thread.join();
    }
    Companion(const Companion&) = delete;
    Companion& operator=(const Companion&) = delete;

private:
    std::atomic<bool> m_stop{false};
    std::thread m_thread;
};

void plainEcho(benchmark::State& state)
{
    UdpSocket near;
    UdpSocket far;
    std::string error;
    const Endpoint nearEnd = *Endpoint::parse("127.0.0.1", portA);
    const Endpoint farEnd = *Endpoint::parse("127.0.0.1", portB);
    if (!near.bindTo(nearEnd, false, error) || !far.bindTo(farEnd, false, error)) {
        state.SkipWithError(error.c_str());
        return;
    }
    const Companion echo([&far, &nearEnd] {
        far.wait(10 * millisecond);
        while (const auto datagram = far.receive()) {
            far.sendTo(nearEnd, datagram->bytes);
        }
    });
    std::uint64_t sent = 0;
    std::uint64_t back = 0;
    CannelloniEncoder encoder;
    for (auto _ : state) {
        std::uint64_t waiting = 0;
        for (std::uint32_t i = 0; i < burst; ++i) {
            encoder.add(frameOf(i));
            if (encoder.isComplete() || i + 1 == burst) {
                near.sendTo(farEnd, encoder.finish());
                encoder.clear();
                ++waiting;
            }
        }
        sent += waiting;
        auto last = Clock::now();
        while (waiting > 0 && Clock::now() - last < lossAfter) {
            near.wait(10 * millisecond);
            while (near.receive()) {
                --waiting;
                ++back;
                last = Clock::now();
            }
        }
    }
    // In frames, so that the figures compare.
    const double framesADatagram = 1.0 * burst * static_cast<double>(state.iterations()) /
                                   static_cast<double>(std::max<std::uint64_t>(sent, 1));
    report(state, static_cast<std::uint64_t>(framesADatagram * static_cast<double>(sent)),
           static_cast<std::uint64_t>(framesADatagram * static_cast<double>(back)));
}

bool openDevice(NetworkDevice& device, std::uint16_t local, std::uint16_t peer)
{
    device.setProperty("LocalPort", std::to_string(local));
    device.setProperty("PeerPort", std::to_string(peer));
    return device.open();
}

void networkModule(benchmark::State& state)
{
    NetworkDevice near;
    NetworkDevice far;
    if (!openDevice(near, portA, portB) || !openDevice(far, portB, portA)) {
        state.SkipWithError((near.errorMsg() + far.errorMsg()).c_str());
        return;
    }
    const Companion echo([&far] {
        while (Message* received = far.recvMessage()) {
            const std::unique_ptr<Message> owner(received);
            if (message_cast<zul::MessageCan>(received) != nullptr) {
                far.sendMessage(received);
            }
        }
        std::this_thread::yield();
    });
    zul::MessageCan frame = *messageFromFrame(frameOf(1));
    std::uint64_t sent = 0;
    std::uint64_t back = 0;
    for (auto _ : state) {
        std::uint64_t waiting = burst;
        for (std::uint32_t i = 0; i < burst; ++i) {
            near.sendMessage(&frame);
        }
        sent += burst;
        auto last = Clock::now();
        while (waiting > 0 && Clock::now() - last < lossAfter) {
            while (Message* received = near.recvMessage()) {
                const std::unique_ptr<Message> owner(received);
                if (message_cast<zul::MessageCan>(received) != nullptr) {
                    --waiting;
                    ++back;
                    last = Clock::now();
                }
            }
            std::this_thread::yield();
        }
    }
    report(state, sent, back);
}

BENCHMARK(plainEcho)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(networkModule)->UseRealTime()->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argumentCount, char** arguments)
{
    const int result = bench::runBenchmarks(
        argumentCount, arguments, {{"networkModule/real_time", "plainEcho/real_time", 0.0}});
    std::printf("lost: %.0f of %.0f million frames\n", static_cast<double>(lostFrames),
                static_cast<double>(sentFrames) / 1e6);
    return result;
}
