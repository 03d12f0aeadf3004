#pragma once

#include "modules/virtual/GeneratorSignal.h"
#include "modules/virtual/NodeReplies.h"
#include "modules/virtual/Scenario.h"

#include <array>
#include <memory>

namespace canvirtual {

/// All that a function generator is told.
struct GeneratorState
{
    static constexpr std::size_t channelCount = 4;
    /// Identifiers of the channels of a generator that has never been told anything.
    static constexpr std::uint32_t firstCanId = 1230;
    static constexpr std::uint32_t firstBaseId = 1000;

    std::uint8_t nodeId = 1;
    std::uint32_t baseId = firstBaseId;
    std::uint8_t baudrate = 0; ///< index; a virtual bus has one bit rate for all
    std::array<GeneratorChannel, channelCount> channels;
};

/// As it comes from the works: the first channel runs.
GeneratorState firstGeneratorState(std::uint8_t nodeId);

/// What a generator keeps while its power is off. It outlives the node, and belongs to the device.
struct GeneratorMemory
{
    GeneratorState state;
    std::uint8_t number = 0; ///< node id of the works for which `state` was made; 0 before that
};

/// A function generator with four channels, in the node service form of CANaerospace.
///
/// It is asked on identifier 128 and answers on 129, and takes the settings of its channels on five
/// identifiers from its base identifier on. "Store data" keeps everything in its memory, from which
/// the next one that is switched on begins.
class GeneratorNode : public Scenario
{
public:
    /// Highest base identifier whose five identifiers are standard ones.
    static constexpr std::uint32_t maxBaseId = maxStandardId - 4;

    GeneratorNode(const NodeSettings& settings, std::shared_ptr<GeneratorMemory> memory,
                  BusTime start);

    BusTime readyAt() const override;
    const PendingFrame& offer(BusTime start) override;
    void sent(BusTime end) override;
    void skipTo(BusTime time) override;
    void observe(const BusFrame& frame, BusTime end) override;

private:
    struct Output
    {
        BusTime dueAt = never;
        BusTime phaseAt = 0; ///< when `phase` held
        double phase = 0.0;  ///< of a period
        std::uint8_t messageCode = 0;
    };

    void takeRequest(const BusFrame& frame, BusTime end);
    bool carryOut(const BusFrame& request);
    void takeSetting(const BusFrame& frame, std::uint32_t kind, BusTime end);
    void configure(std::size_t channel, const BusFrame& frame, BusTime end);
    void startOutput(std::size_t channel, BusTime time);
    std::size_t nextChannel() const;
    BusTime period(std::size_t channel) const;

    NodeSettings m_settings;
    std::shared_ptr<GeneratorMemory> m_memory;
    GeneratorState m_state;
    NodeReplies m_replies;
    std::array<Output, GeneratorState::channelCount> m_outputs;
    PendingFrame m_offered;
    std::size_t m_offeredChannel = GeneratorState::channelCount; ///< that number for a reply
};

} // namespace canvirtual
