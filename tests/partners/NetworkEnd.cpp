// This program's end of the network module, for tests with a partner of another make.
//
//   network_end receive GROUP PORT COUNT       prints "ready", takes COUNT frames and checks them
//   network_end send GROUP PORT COUNT RATE     sends COUNT frames, RATE of them a second
//
// The frames are those of python_can_partner.py.

#include "message/MessageInterface.h"
#include "modules/network/NetworkDevice.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <thread>

namespace {

using zul::MessageCan;
using ECtrl = zul::MessageCtrl::ECtrl;

constexpr std::chrono::milliseconds readerPause(10); // that of the program's reader thread

MessageCan frameOf(std::uint32_t number)
{
    const bool isFd = number % 2 == 1;
    MessageCan frame;
    frame.setId(number);
    frame.setMode(isFd ? MessageCan::EMsgMode::ExtendedFdBrs : MessageCan::EMsgMode::Extended);
    frame.setByteCount(isFd ? 64 : 8);
    for (int i = 0; i < 4; ++i) {
        frame.msg()[i] = static_cast<std::uint8_t>(number >> (24 - 8 * i));
    }
    return frame;
}

bool isAsExpected(const MessageCan& frame, std::uint32_t number)
{
    const MessageCan expected = frameOf(number);
    bool isSame = frame.id() == expected.id() && frame.mode() == expected.mode() &&
                  frame.byteCount() == expected.byteCount() &&
                  frame.frameType() == expected.frameType();
    for (int i = 0; i < 64; ++i) {
        isSame = isSame && frame.msg()[i] == expected.msg()[i];
    }
    return isSame;
}

int receive(Device& device, std::uint32_t count)
{
    std::puts("ready");
    std::fflush(stdout);
    std::uint32_t number = 0;
    auto last = std::chrono::steady_clock::now();
    while (number < count && std::chrono::steady_clock::now() - last < std::chrono::seconds(20)) {
        while (Message* received = device.recvMessage()) {
            const std::unique_ptr<Message> owner(received);
            const auto* frame = message_cast<MessageCan>(received);
            if (frame == nullptr) {
                continue;
            }
            if (!isAsExpected(*frame, number)) {
                std::printf("frame %u came as 0x%X\n", number, frame->id());
                return EXIT_FAILURE;
            }
            ++number;
            last = std::chrono::steady_clock::now();
        }
        std::this_thread::sleep_for(readerPause);
    }
    std::printf("received %u\n", number);
    return number == count ? EXIT_SUCCESS : EXIT_FAILURE;
}

bool control(Device& device, ECtrl id)
{
    zul::MessageCtrl message;
    message.setId(id);
    return device.sendMessage(&message);
}

// What reports tell of the schedule.
struct ScheduleRows
{
    std::string left;
    std::string meanLate;
    std::string worstLate;
};

void readReports(Device& device, ScheduleRows& rows)
{
    while (Message* received = device.recvMessage()) {
        const std::unique_ptr<Message> owner(received);
        const auto* status = message_cast<zul::MessageStatus>(received);
        if (status == nullptr) {
            continue;
        }
        for (const zul::DeviceStatusEntry& entry : status->entries) {
            if (entry.label == "CPM") {
                rows.left = entry.value;
            } else if (entry.label == "Schedule mean late [us]") {
                rows.meanLate = entry.value;
            } else if (entry.label == "Schedule worst late [us]") {
                rows.worstLate = entry.value;
            }
        }
    }
}

int send(Device& device, std::uint32_t count, double rate)
{
    control(device, ECtrl::ScheduleBegin);
    for (std::uint32_t number = 0; number < count; ++number) {
        MessageCan frame = frameOf(number);
        frame.setCpmMode(1);
        frame.setTimeStamp(0.1 + number / rate);
        if (!device.sendMessage(&frame)) {
            std::puts(device.errorMsg().c_str());
            return EXIT_FAILURE;
        }
    }
    control(device, ECtrl::ScheduleEnd);
    const auto begin = std::chrono::steady_clock::now();
    control(device, ECtrl::ScheduleStart);
    ScheduleRows rows;
    while (rows.left != "0") {
        readReports(device, rows);
        std::this_thread::sleep_for(readerPause);
    }
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    std::printf("sent %u in %.1f s; behind the schedule %s us, at worst %s us\n", count,
                taken.count(), rows.meanLate.c_str(), rows.worstLate.c_str());
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 5) {
        return EXIT_FAILURE;
    }
    cannetwork::NetworkDevice device;
    device.setProperty("Protocol", "1");
    device.setProperty("Group", argv[2]);
    device.setProperty("GroupPort", argv[3]);
    if (!device.open()) {
        std::puts(device.errorMsg().c_str());
        return EXIT_FAILURE;
    }
    const auto count = static_cast<std::uint32_t>(std::strtoul(argv[4], nullptr, 10));
    const int result =
        argc > 5 ? send(device, count, std::strtod(argv[5], nullptr)) : receive(device, count);
    device.close();
    return result;
}
