#include "core/ModuleRegistry.h"
#include "message/MessageCan.h"

#include <cstdio>
#include <memory>

namespace {

int fail(const char* reason)
{
    std::fprintf(stderr, "%s\n", reason);
    return 1;
}

} // namespace

// Loads the module of the name in the second argument from the directory in the first, and has its
// device give back a frame.
int main(int argc, char** argv)
{
    if (argc != 3) {
        return fail("usage: package_loader <directory> <module name>");
    }
    const ModuleRegistry registry({QString::fromLocal8Bit(argv[1])});
    const std::unique_ptr<Device> device(registry.createDevice(argv[2]));
    if (!device) {
        return fail("no device");
    }
    zul::MessageCan frame;
    frame.setId(0x123);
    if (!device->open() || !device->sendMessage(&frame)) {
        return fail("the frame was not taken");
    }
    const std::unique_ptr<Message> received(device->recvMessage());
    const auto* back = message_cast<zul::MessageCan>(received.get());
    if (back == nullptr || back->id() != frame.id()) {
        return fail("the frame did not come back as what it is");
    }
    return device->close() ? 0 : fail("not closed");
}
