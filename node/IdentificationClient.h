#pragma once

#include "node/ServiceAddress.h"
#include "node/StateLook.h"

#include <array>
#include <cstdint>

class MessageContainer;
class ServiceLink;

/// The client of the Identification Service: one request, one answer, no retry.
class IdentificationClient
{
public:
    enum class State : std::int32_t { Idle = 0, Waiting = 1, Timeout = 2, Received = 3 };

    /// What a server says of itself, each number of 16 bits.
    struct Identification
    {
        std::uint32_t profileId = 0;
        std::uint32_t profileSubId = 0;
        std::uint32_t lruCode = 0;
    };

    static constexpr std::array<StateLook, 4> looks{{
        {static_cast<std::int32_t>(State::Idle), "Idle", 150, 150, 150},
        {static_cast<std::int32_t>(State::Waiting), "Waiting on response ...", 255, 255, 100},
        {static_cast<std::int32_t>(State::Timeout), "Timeout", 255, 100, 100},
        {static_cast<std::int32_t>(State::Received), "Response received", 100, 255, 100},
    }};

    /// `link` outlives the client.
    explicit IdentificationClient(ServiceLink& link);

    ServiceAddress& address() { return m_address; }
    const ServiceAddress& address() const { return m_address; }

    /// Sends the request, in any state, and waits.
    void send();
    /// Takes the answers out of a batch, in any state: a late one counts, and before the first
    /// request one with the identifier 0. True if there was one.
    bool receive(const MessageContainer& batch);
    /// The clock has run out.
    void timeOut();

    State state() const { return m_state; }
    const StateLook& look() const { return lookOf(looks, static_cast<std::int32_t>(m_state)); }
    /// Of the last answer.
    const Identification& identification() const { return m_identification; }

private:
    ServiceLink& m_link;
    ServiceAddress m_address;
    State m_state = State::Idle;
    std::uint32_t m_expectedId = 0;
    Identification m_identification;
};
