#pragma once

#include "modules/virtual/NodeReplies.h"
#include "modules/virtual/Scenario.h"
#include "modules/virtual/UploadSession.h"

#include <optional>

namespace canvirtual {

/// A node with the ARINC 825 services Identification and Data Upload. It answers requests to any
/// server and any service identifier.
class ServerNode : public Scenario
{
public:
    /// What it says of itself; the LRU code is the node's number.
    static constexpr std::uint16_t profileId = 825;
    static constexpr std::uint16_t profileSubId = 3;

    explicit ServerNode(const NodeSettings& settings);

    BusTime readyAt() const override;
    const PendingFrame& offer(BusTime start) override;
    void sent(BusTime end) override;
    void skipTo(BusTime time) override;
    void observe(const BusFrame& frame, BusTime end) override;

private:
    /// One client's upload, from the request on.
    struct Transfer
    {
        std::uint32_t requestId;
        UploadSession session;
        bool isConfirmed;
    };

    void identify(const BusFrame& request, BusTime end);
    void takeUploadMessage(const BusFrame& frame, BusTime end);
    bool isConfirmation(const BusFrame& frame) const;
    void startTransfer(const BusFrame& request, BusTime end);
    void takeData(const BusFrame& frame, BusTime end);
    void finish(BusTime end);
    void endTransfer();
    static BusFrame endOf(const Transfer& transfer, UploadSession::Error error);

    NodeSettings m_settings;
    NodePacing m_pacing;
    NodeReplies m_replies;
    std::optional<Transfer> m_transfer;
    PendingFrame m_givingUp = makePending({}, never); ///< what is told when the data stay out
    bool m_offersGivingUp = false;
};

} // namespace canvirtual
