#include "node/GeneratorControl.h"

#include "core/Latin1.h"
#include "node/FrameBytes.h"
#include "profile/Arinc825Id.h"

namespace {

constexpr int nodeAt = 0;
constexpr int serviceCodeAt = 2;
constexpr int resultAt = 3;
constexpr int dataAt = 4;

bool isReply(const zul::MessageCan& frame)
{
    return frame.id() == generator::replyId &&
           frame.mode() == zul::MessageCan::EMsgMode::Standard &&
           frame.frameType() == zul::MessageCan::EFrameType::Data;
}

MessageContainer emptyBatch(const ObjectFunctionGen& object)
{
    MessageContainer batch;
    batch.setSrcDest(zul::toLatin1(object.settings().outputInterface));
    return batch;
}

std::uint32_t nodeOf(const ObjectFunctionGen::Generator& generator)
{
    return static_cast<std::uint32_t>(generator.nodeId);
}

} // namespace

void GeneratorControl::append(MessageContainer& batch, generator::Frame frame)
{
    batch.addMessage(SmartPtr<Message>(frame.release()));
    ++m_sent;
}

MessageContainer GeneratorControl::request(const ObjectFunctionGen& object, generator::Frame frame)
{
    MessageContainer batch = emptyBatch(object);
    if (object.settings().outputOn) {
        append(batch, std::move(frame));
    }
    return batch;
}

void GeneratorControl::startSearch()
{
    m_searchNode = 0;
    m_found.clear();
}

MessageContainer GeneratorControl::searchStep(const ObjectFunctionGen& object)
{
    if (!isSearching()) {
        return emptyBatch(object);
    }
    return request(object, generator::searchRequest(m_searchNode++));
}

MessageContainer GeneratorControl::flash(const ObjectFunctionGen& object, Operation operation,
                                         generator::Frame frame)
{
    MessageContainer batch = request(object, std::move(frame));
    m_flashStatus = FlashStatus::Waiting;
    m_flashOperation = operation;
    return batch;
}

MessageContainer GeneratorControl::setNodeId(ObjectFunctionGen& object, const Generator& generator,
                                             std::uint32_t newNode)
{
    MessageContainer batch =
        flash(object, Operation::NodeId, generator::nodeIdRequest(nodeOf(generator), newNode));
    // Deliberate: at once, before the node has said that it took it.
    object.generator().nodeId = static_cast<std::int32_t>(newNode);
    return batch;
}

MessageContainer GeneratorControl::setBaseId(const ObjectFunctionGen& object,
                                             const Generator& generator)
{
    const auto baseId = static_cast<std::uint32_t>(generator.nodeBaseId);
    return flash(object, Operation::BaseId, generator::baseIdRequest(nodeOf(generator), baseId));
}

MessageContainer GeneratorControl::setBaudrate(const ObjectFunctionGen& object,
                                               const Generator& generator)
{
    const auto index = static_cast<std::uint32_t>(generator.baudrate);
    return flash(object, Operation::Baudrate, generator::baudrateRequest(nodeOf(generator), index));
}

MessageContainer GeneratorControl::storeData(const ObjectFunctionGen& object,
                                             const Generator& generator)
{
    return flash(object, Operation::Store, generator::storeRequest(nodeOf(generator)));
}

void GeneratorControl::flashTimeOut()
{
    if (m_flashStatus == FlashStatus::Waiting) {
        m_flashStatus = FlashStatus::Timeout;
    }
}

GeneratorControl::Update GeneratorControl::receive(const MessageContainer& batch,
                                                   ObjectFunctionGen& object)
{
    Update update;
    const FunctionGenSettings& settings = object.settings();
    if (settings.inputInterface != allInterfacesName() &&
        zul::toLatin1(settings.inputInterface) != batch.srcDest()) {
        return update;
    }
    update.isOurs = true;
    const bool areRepliesTaken = settings.inputOn && object.filter().matches(generator::replyId);
    for (const SmartPtr<Message>& message : batch.messages()) {
        const auto* frame = message_cast<zul::MessageCan>(message.get());
        if (frame == nullptr) {
            continue;
        }
        ++m_received;
        if (areRepliesTaken && isReply(*frame)) {
            takeReply(*frame, update);
        }
    }
    if (update.found) {
        object.generator().nodeId = static_cast<std::int32_t>(m_found.front().node);
        object.generator().nodeBaseId = static_cast<std::int32_t>(m_found.front().baseId);
    }
    return update;
}

GeneratorControl::Operation GeneratorControl::operationOf(std::uint8_t serviceCode)
{
    switch (serviceCode) {
    case generator::service::setNodeId:
        return Operation::NodeId;
    case generator::service::setBaseId:
        return Operation::BaseId;
    case generator::service::setBaudrate:
        return Operation::Baudrate;
    case generator::service::storeData:
        return Operation::Store;
    default:
        return Operation::None;
    }
}

void GeneratorControl::takeReply(const zul::MessageCan& frame, Update& update)
{
    const std::uint8_t serviceCode = frame.msg()[serviceCodeAt];
    if (serviceCode == generator::service::search) {
        if (m_found.size() < maxFound) {
            m_found.push_back({frame.msg()[nodeAt], longAt(frame, dataAt)});
            update.found = true;
        }
        return;
    }
    const Operation operation = operationOf(serviceCode);
    if (operation != Operation::None && operation == m_flashOperation) {
        m_flashStatus = frame.msg()[resultAt] > 0 ? FlashStatus::Error : FlashStatus::Ok;
        update.flash = true;
    }
}

MessageContainer GeneratorControl::write(const ObjectFunctionGen& object, std::size_t channel,
                                         std::initializer_list<Kind> kinds)
{
    MessageContainer batch = emptyBatch(object);
    const bool hasIdentifiers =
        static_cast<std::uint32_t>(object.generator().nodeBaseId) <= zul::arinc825::maxExtendedId;
    if (!object.settings().outputOn || !hasIdentifiers || channel >= object.channels().size()) {
        return batch;
    }
    for (const Kind kind : kinds) {
        append(batch, generator::channelFrame(kind, object.generator(), object.channels()[channel],
                                              m_messageCode++));
    }
    return batch;
}

MessageContainer GeneratorControl::writeActivation(const ObjectFunctionGen& object,
                                                   std::size_t channel)
{
    if (channel < object.channels().size() && object.channels()[channel].active) {
        return write(
            object, channel,
            {Kind::CanId, Kind::Frequency, Kind::Amplitude, Kind::Offset, Kind::Configuration});
    }
    return write(object, channel, {Kind::Configuration});
}

MessageContainer GeneratorControl::writeConfiguration(const ObjectFunctionGen& object,
                                                      std::size_t channel)
{
    if (channel < object.channels().size() && object.channels()[channel].active) {
        return write(object, channel, {Kind::Configuration});
    }
    return emptyBatch(object);
}

MessageContainer GeneratorControl::writeSetting(const ObjectFunctionGen& object,
                                                std::size_t channel, Kind kind)
{
    if (channel < object.channels().size() && object.channels()[channel].active) {
        return write(object, channel, {kind, Kind::Configuration});
    }
    return write(object, channel, {kind});
}
