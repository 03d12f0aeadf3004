#include "modules/network/PythonCan.h"

#include <cstdlib>

// Any bytes: one frame that can be, or none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace cannetwork;
    PythonCanDecoder decoder;
    std::vector<BusFrame> frames;
    const DatagramFault fault = decoder.decode({data, size}, frames);
    if (frames.size() != (fault == DatagramFault::None ? 1U : 0U)) {
        std::abort();
    }
    for (const BusFrame& frame : frames) {
        if (frame.byteCount > (isFd(frame.mode) ? maxFdBytes : maxClassicBytes) ||
            frame.id > (isExtended(frame.mode) || frame.type == FrameType::Error ? maxExtendedId
                                                                                 : maxStandardId)) {
            std::abort();
        }
    }
    return 0;
}
