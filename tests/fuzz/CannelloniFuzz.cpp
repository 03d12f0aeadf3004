#include "modules/network/Cannelloni.h"

#include <cstdlib>

// Any bytes: no frame of a datagram with a fault, and none that cannot be.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace cannetwork;
    CannelloniDecoder decoder;
    std::vector<BusFrame> frames;
    const DatagramFault fault = decoder.decode({data, size}, frames);
    if (fault != DatagramFault::None && !frames.empty()) {
        std::abort();
    }
    for (const BusFrame& frame : frames) {
        if (frame.byteCount > (isFd(frame.mode) ? maxFdBytes : maxClassicBytes)) {
            std::abort();
        }
    }
    return 0;
}
