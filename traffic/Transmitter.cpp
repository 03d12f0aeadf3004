#include "traffic/Transmitter.h"

#include "core/Latin1.h"
#include "message/MessageCan.h"

#include <utility>

namespace {

constexpr double secondsPerMillisecond = 0.001;
constexpr std::int32_t isRunning = 1;

MessageContainer emptyBatch(const ObjectTransmit& object)
{
    MessageContainer batch;
    batch.setSrcDest(zul::toLatin1(object.settings().outputInterface));
    return batch;
}

} // namespace

SendMsg* transmitLine(const ObjectTransmit& object, int index)
{
    const bool isInRange = index >= 0 && static_cast<std::size_t>(index) < object.lines().size();
    return isInRange ? object.lines()[static_cast<std::size_t>(index)].get() : nullptr;
}

bool Transmitter::isDue(const SendMsg& line, double now)
{
    return line.rate != 0 && line.running == isRunning &&
           now - line.lastSent > line.rate * secondsPerMillisecond;
}

SmartPtr<Message> Transmitter::frameOf(const SendMsg& line)
{
    auto* frame = new zul::MessageCan;
    frame->setByteCount(line.byteCount);
    frame->setFrameType(zul::MessageCan::EFrameType::Data);
    frame->setId(line.id);
    frame->setMode(static_cast<zul::MessageCan::EMsgMode>(line.mode));
    frame->msg() = line.data;
    return SmartPtr<Message>(frame);
}

std::optional<MessageContainer> Transmitter::tick(ObjectTransmit& object, double now)
{
    std::optional<MessageContainer> batch; // made for the first line that is due: mostly none is
    for (const auto& line : object.lines()) {
        if (!isDue(*line, now)) {
            continue;
        }
        if (!batch) {
            batch = emptyBatch(object);
        }
        batch->addMessage(frameOf(*line));
        ++m_transmitted;
        line->lastSent = now;
    }
    return batch;
}

std::optional<MessageContainer> Transmitter::sendLine(const ObjectTransmit& object, int index)
{
    const SendMsg* line = transmitLine(object, index);
    if (line == nullptr || !object.settings().outputOn) {
        return std::nullopt;
    }
    return batchOf(object, *line);
}

std::vector<MessageContainer> Transmitter::sendLines(const ObjectTransmit& object,
                                                     const std::set<int>& indexes)
{
    std::vector<MessageContainer> batches;
    for (const int index : indexes) {
        if (auto batch = sendLine(object, index)) {
            batches.push_back(std::move(*batch));
        }
    }
    return batches;
}

std::optional<MessageContainer> Transmitter::edit(ObjectTransmit& object, int index,
                                                  const SendMsg& edited)
{
    SendMsg* line = transmitLine(object, index);
    if (line == nullptr) {
        return std::nullopt;
    }
    const std::int32_t rate = line->rate;
    const std::int32_t running = line->running;
    *line = edited;
    line->rate = rate;
    line->running = running;
    if (!object.settings().autoTx || !object.settings().outputOn) {
        return std::nullopt;
    }
    return batchOf(object, edited);
}

MessageContainer Transmitter::batchOf(const ObjectTransmit& object, const SendMsg& line)
{
    MessageContainer batch = emptyBatch(object);
    batch.addMessage(frameOf(line));
    ++m_transmitted;
    return batch;
}
