#include "message/MessageCan.h"
#include "message/MessageContainer.h"

#include <tuple>

// Inline functions are in the library only where something takes their addresses. Modules that were
// built while these were ordinary functions look for them here.

namespace {

using zul::MessageCan;

[[gnu::used]] constexpr std::tuple containerAccessors{
    static_cast<MessageContainer::Messages& (MessageContainer::*)()>(&MessageContainer::messages),
    static_cast<const MessageContainer::Messages& (MessageContainer::*)() const>(
        &MessageContainer::messages),
    static_cast<std::string& (MessageContainer::*)()>(&MessageContainer::srcDest),
    static_cast<const std::string& (MessageContainer::*)() const>(&MessageContainer::srcDest),
    &MessageContainer::size};

[[gnu::used]] constexpr std::tuple frameAccessors{
    &MessageCan::id,
    &MessageCan::setId,
    &MessageCan::byteCount,
    &MessageCan::setByteCount,
    &MessageCan::frameType,
    &MessageCan::setFrameType,
    &MessageCan::mode,
    &MessageCan::setMode,
    &MessageCan::channel,
    &MessageCan::setChannel,
    &MessageCan::cpmMode,
    &MessageCan::setCpmMode,
    &MessageCan::timeStamp,
    &MessageCan::timeStampDouble,
    static_cast<void (MessageCan::*)(const MessageCan::TimeStamp&)>(&MessageCan::setTimeStamp),
    static_cast<zul::MessageData& (MessageCan::*)()>(&MessageCan::msg),
    static_cast<const zul::MessageData& (MessageCan::*)() const>(&MessageCan::msg)};

} // namespace
