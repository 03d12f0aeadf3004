#include "node/ServiceAddress.h"

std::uint32_t requestId(const ServiceAddress& address)
{
    namespace arinc825 = zul::arinc825;
    return address.lcc << arinc825::lcc.shift | address.clientFid << arinc825::service::cfid.shift |
           requestBit | address.lcl << arinc825::service::lcl.shift |
           address.serverFid << arinc825::service::sfid.shift |
           address.sid << arinc825::service::sid.shift | address.rci;
}

std::unique_ptr<zul::MessageCan> serviceFrame(std::uint32_t id, std::uint32_t byteCount)
{
    auto frame = std::make_unique<zul::MessageCan>();
    frame->setMode(zul::MessageCan::EMsgMode::Extended);
    frame->setFrameType(zul::MessageCan::EFrameType::Data);
    frame->setId(id);
    frame->setByteCount(byteCount);
    return frame;
}

const zul::MessageCan* answerOf(const Message* message)
{
    const auto* frame = message_cast<zul::MessageCan>(message);
    const bool isError =
        frame != nullptr && frame->frameType() == zul::MessageCan::EFrameType::Error;
    return isError ? nullptr : frame;
}
