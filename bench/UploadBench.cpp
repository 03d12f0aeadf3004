// The schedule of a file of 16 MiB: how long the main thread is held up by making it, handing it to
// the device and giving it up, and how much memory a frame takes, against making as many frames and
// nothing else.

#include "message/MessageCan.h"
#include "modules/virtual/BusRegistry.h"
#include "modules/virtual/VirtualDevice.h"
#include "node/UploadSchedule.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <vector>

namespace {

constexpr int fileBytes = 16 * 1024 * 1024;
constexpr std::uint32_t dataId = 0x10050000;
constexpr int rounds = 5;

// Of the processor: other work on the machine counts little.
double processorSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double secondsSince(double start)
{
    return processorSeconds() - start;
}

std::size_t heapBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

struct Round
{
    double build = 0.0;
    double send = 0.0;
    double release = 0.0;
    double bare = 0.0;
    double bytesPerFrame = 0.0;
    double deviceBytesPerFrame = 0.0;

    double held() const { return build + send + release; }
};

double bareFrames(std::uint32_t count)
{
    const double start = processorSeconds();
    MessageContainer batch;
    batch.messages().reserve(count);
    for (std::uint32_t i = 0; i < count; ++i) {
        batch.addMessage(SmartPtr<Message>(new zul::MessageCan));
    }
    return secondsSince(start);
}

Round run(const QByteArray& file, canvirtual::VirtualDevice& device)
{
    const double frames = uploadFrameCount(static_cast<std::uint64_t>(file.size()));
    Round round;
    std::size_t heap = heapBytes();
    double start = processorSeconds();
    auto batch = std::make_unique<MessageContainer>(uploadSchedule(file, dataId, {}));
    round.build = secondsSince(start);
    round.bytesPerFrame = static_cast<double>(heapBytes() - heap) / frames;

    heap = heapBytes();
    start = processorSeconds();
    for (const SmartPtr<Message>& message : batch->messages()) {
        if (!device.sendMessage(message.get())) {
            std::printf("not sent: %s\n", device.errorMsg().c_str());
            break;
        }
    }
    round.send = secondsSince(start);
    round.deviceBytesPerFrame = static_cast<double>(heapBytes() - heap) / frames;

    start = processorSeconds();
    batch.reset();
    round.release = secondsSince(start);
    round.bare = bareFrames(static_cast<std::uint32_t>(frames));
    return round;
}

} // namespace

int main()
{
    const QByteArray file(fileBytes, 'x');
    std::vector<Round> all;
    for (int i = 0; i < rounds; ++i) {
        canvirtual::VirtualDevice device(canvirtual::BusRegistry::process());
        device.open();
        all.push_back(run(file, device));
    }
    std::sort(all.begin(), all.end(),
              [](const Round& left, const Round& right) { return left.held() < right.held(); });
    const Round& median = all[rounds / 2];
    std::printf("frames                     %u\n", uploadFrameCount(fileBytes));
    std::printf("schedule made              %.3f s\n", median.build);
    std::printf("taken by the device        %.3f s\n", median.send);
    std::printf("batch given up             %.3f s\n", median.release);
    std::printf("main thread held up        %.3f s (%.3f to %.3f, target 1)\n", median.held(),
                all.front().held(), all.back().held());
    std::printf("frames made, nothing else  %.3f s\n", median.bare);
    std::printf("memory of the batch        %.0f bytes a frame\n", median.bytesPerFrame);
    std::printf("memory of the device       %.0f bytes a frame\n", median.deviceBytesPerFrame);
    return 0;
}
