#include "measure/GraphFeed.h"

#include "measure/GraphEngine.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "profile/Arinc825Id.h"
#include "profile/ValueCodec.h"
#include "project/ObjectGraph.h"

#include <algorithm>
#include <tuple>

using zul::MessageCan;

namespace {

bool isFromInterface(const MessageContainer& batch, const QString& name)
{
    const std::string& source = batch.srcDest();
    return name == allInterfacesName() ||
           name == QLatin1String(source.data(), static_cast<int>(source.size()));
}

/// The identifier that the parameter's is compared with. The functional status of an ARINC 825
/// frame says nothing about what the frame carries.
std::uint32_t comparedId(std::uint32_t frameId, const ProfileParameter& parameter)
{
    return parameter.parameterKind == ParameterKind::Arinc825
               ? zul::arinc825::data::fsb.set(frameId, 0)
               : frameId;
}

// Deliberate: inactive parameters collect values too; only their channels are invisible.
void feed(const MessageCan& frame, const std::vector<GraphParameter>& parameters,
          GraphEngine& engine)
{
    // Those without a channel have nowhere to go.
    const std::size_t count = std::min(parameters.size(), engine.state().channels.size());
    for (std::size_t i = 0; i < count; ++i) {
        const ProfileParameter& parameter = parameters[i].parameter;
        if (comparedId(frame.id(), parameter) == parameter.id) {
            engine.addValue(static_cast<std::uint32_t>(i), zul::valueOf(frame, parameter));
        }
    }
}

} // namespace

bool isFedAlike(const ProfileParameter& one, const ProfileParameter& other)
{
    const auto fedBy = [](const ProfileParameter& parameter) {
        return std::tie(parameter.parameterKind, parameter.id, parameter.dtc, parameter.sppByte,
                        parameter.sppBit, parameter.eppByte, parameter.eppBit, parameter.min,
                        parameter.max, parameter.endian, parameter.scaleOffset,
                        parameter.scaleFactor);
    };
    return fedBy(one) == fedBy(other);
}

bool GraphFeed::receive(const MessageContainer& batch, double now, const ObjectGraph* object,
                        GraphEngine& engine)
{
    engine.setCurrentTime(now - m_startTime);
    if (object == nullptr || !isFromInterface(batch, object->settings().inputInterface)) {
        return false;
    }
    for (const auto& message : batch.messages()) {
        const auto* frame = message_cast<MessageCan>(message.get());
        if (frame == nullptr) {
            continue;
        }
        ++m_frameCount;
        if (object->settings().inputOn && object->filter().matches(frame->id())) {
            feed(*frame, object->parameters(), engine);
        }
    }
    return true;
}
