#include "measure/DialFeed.h"

#include "message/MessageContainer.h"
#include "project/Filter.h"
#include "project/ObjectDial.h"

DialFeed::Update DialFeed::receive(const MessageContainer& batch, const DialSettings& settings,
                                   const std::string& inputInterface, const Filter& filter)
{
    if (inputInterface != allInterfaces && inputInterface != batch.srcDest()) {
        return Update::Ignored;
    }
    const zul::MessageCan* match = nullptr;
    for (const auto& message : batch.messages()) {
        const auto* frame = message_cast<zul::MessageCan>(message.get());
        if (frame == nullptr) {
            continue;
        }
        ++m_receivedTotal;
        if (settings.inputOn && frame->id() == settings.canId && filter.matches(frame->id())) {
            match = frame;
        }
    }
    if (match == nullptr) {
        return Update::Counted;
    }
    m_last = *match;
    return Update::Matched;
}
