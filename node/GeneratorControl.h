#pragma once

#include "message/MessageContainer.h"
#include "node/GeneratorFrames.h"
#include "node/StateLook.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

/// The master of function generators on a bus: finds them, sets and stores what each node is, and
/// brings the settings of its four channels to the one that is addressed.
///
/// Every batch that an operation returns is to be sent, and is addressed to the object's output
/// interface. While the output is off it is empty.
class GeneratorControl
{
public:
    /// A generator that has answered a search.
    struct Found
    {
        std::uint32_t node = 0;
        std::uint32_t baseId = 0;
    };

    /// Answers beyond this number are left out of the list.
    static constexpr std::size_t maxFound = 1000;
    static constexpr int searchPeriodMs = 10;
    static constexpr int flashTimeoutMs = 1000;

    enum class FlashStatus : std::int32_t { None = 0, Waiting = 1, Timeout = 2, Error = 3, Ok = 4 };

    static constexpr std::array<StateLook, 5> looks{{
        {static_cast<std::int32_t>(FlashStatus::None), "---", 180, 180, 180},
        {static_cast<std::int32_t>(FlashStatus::Waiting), "Waiting...", 255, 150, 80},
        {static_cast<std::int32_t>(FlashStatus::Timeout), "Timeout Error", 255, 80, 80},
        {static_cast<std::int32_t>(FlashStatus::Error), "Error", 255, 150, 150},
        {static_cast<std::int32_t>(FlashStatus::Ok), "OK", 150, 255, 150},
    }};

    /// Forgets what was found, and begins with node 0.
    void startSearch();
    /// The next request. After the one for the last node the search is over.
    MessageContainer searchStep(const ObjectFunctionGen& object);
    bool isSearching() const { return m_searchNode < generator::nodeCount; }
    std::uint32_t searchNode() const { return m_searchNode; }
    /// In the order of the answers, the same node as often as it answered.
    const std::vector<Found>& found() const { return m_found; }

    using Generator = ObjectFunctionGen::Generator;

    /// Requests to the node of `generator`, with its settings: those of the moment in which the
    /// user asked, since an answer to a search may change the object's before he has confirmed.
    /// Each waits for the reply from then on.
    MessageContainer setNodeId(ObjectFunctionGen& object, const Generator& generator,
                               std::uint32_t newNode);
    MessageContainer setBaseId(const ObjectFunctionGen& object, const Generator& generator);
    MessageContainer setBaudrate(const ObjectFunctionGen& object, const Generator& generator);
    MessageContainer storeData(const ObjectFunctionGen& object, const Generator& generator);
    /// No reply has come in time, if none has.
    void flashTimeOut();
    FlashStatus flashStatus() const { return m_flashStatus; }
    const StateLook& flashLook() const
    {
        return lookOf(looks, static_cast<std::int32_t>(m_flashStatus));
    }

    /// What a batch has brought.
    struct Update
    {
        bool isOurs = false; ///< of the object's input interface
        bool found = false;  ///< answers to a search
        bool flash = false;  ///< a reply to the last request
    };

    /// Takes the replies out of a batch. Late ones count; who sent them is not asked.
    Update receive(const MessageContainer& batch, ObjectFunctionGen& object);

    // Writes to the channel of that index. What the channel's settings are is the caller's.
    using Kind = generator::ChannelFrame;

    /// The frames in this order; none where the base identifier is beyond 29 bits, as a garbled
    /// answer may have it.
    MessageContainer write(const ObjectFunctionGen& object, std::size_t channel,
                           std::initializer_list<Kind> kinds);
    /// All of a channel that is active, of one that is not only that.
    MessageContainer writeActivation(const ObjectFunctionGen& object, std::size_t channel);
    /// The configuration, if the channel is active.
    MessageContainer writeConfiguration(const ObjectFunctionGen& object, std::size_t channel);
    /// One setting, and the configuration if the channel is active.
    MessageContainer writeSetting(const ObjectFunctionGen& object, std::size_t channel, Kind kind);

    /// Frames so far.
    std::uint32_t receivedTotal() const { return m_received; }
    std::uint32_t sentTotal() const { return m_sent; }

private:
    /// Numbers by which replies are told.
    enum class Operation : std::int32_t {
        None = -1,
        NodeId = 0,
        BaseId = 1,
        Baudrate = 2,
        Store = 3
    };

    static Operation operationOf(std::uint8_t serviceCode);

    void append(MessageContainer& batch, generator::Frame frame);
    MessageContainer request(const ObjectFunctionGen& object, generator::Frame frame);
    MessageContainer flash(const ObjectFunctionGen& object, Operation operation,
                           generator::Frame frame);
    void takeReply(const zul::MessageCan& frame, Update& update);

    std::uint32_t m_searchNode = generator::nodeCount;
    std::vector<Found> m_found;
    FlashStatus m_flashStatus = FlashStatus::None;
    Operation m_flashOperation = Operation::None;
    std::uint8_t m_messageCode = 0;
    std::uint32_t m_received = 0;
    std::uint32_t m_sent = 0;
};
