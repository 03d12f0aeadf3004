#include "traffic/TraceFrame.h"

using zul::MessageCan;

void TraceFrame::copyTo(MessageCan& message) const
{
    message.setId(id);
    message.setByteCount(byteCount);
    message.setFrameType(static_cast<MessageCan::EFrameType>(frameType));
    message.setMode(static_cast<MessageCan::EMsgMode>(mode));
    message.setTimeStamp(MessageCan::TimeStamp{seconds, nanoseconds});
    for (int i = 0; i < byteCapacity; ++i) {
        message.msg()[i] = bytes[static_cast<std::size_t>(i)];
    }
}

void TraceFrames::append(const TraceFrame& frame)
{
    if (frames.empty()) {
        firstTime = frame.time();
    }
    lastTime = frame.time();
    frames.push_back(frame);
}
