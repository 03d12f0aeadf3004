#pragma once

#include "modules/support/BusTime.h"
#include "modules/support/Bytes.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace cannetwork {

using namespace canmodule; // NOLINT(google-build-using-namespace)

/// An IPv4 or IPv6 address with a port.
struct Endpoint
{
    std::array<std::uint8_t, 16> address{}; ///< the first four bytes of IPv4
    bool isV6 = false;
    std::uint32_t scope = 0; ///< of a link-local IPv6 address: index of the network interface
    std::uint16_t port = 0;

    /// Of a numeric address such as "192.168.0.7" or "fe80::1%eth0". Nothing if it is none.
    static std::optional<Endpoint> parse(const std::string& address, std::uint16_t port);

    bool isGroup() const;
    bool isSameHost(const Endpoint& other) const
    {
        return isV6 == other.isV6 && address == other.address;
    }
    bool operator==(const Endpoint& other) const { return isSameHost(other) && port == other.port; }
    /// As "192.168.0.7:20000" or "[fe80::1]:20000".
    std::string text() const;
};

/// A datagram that was received.
struct Datagram
{
    ByteView bytes; ///< valid until the next one is received
    Endpoint from;
    BusTime time = 0; ///< when the kernel took it, since 1970-01-01 00:00 UTC
    /// Datagrams that the kernel has dropped since the socket was made, if it tells.
    std::uint32_t kernelDrops = 0;
};

/// A UDP socket that never blocks. One thread receives; any may send.
class UdpSocket
{
public:
    enum class SendResult { Sent, Full, Failed };

    UdpSocket();
    ~UdpSocket();
    UdpSocket(const UdpSocket&) = delete;
    UdpSocket& operator=(const UdpSocket&) = delete;

    // Each of these is false on failure, with the reason in `error`.

    /// Receives what arrives at the port, at every address of the machine. `isShared` lets other
    /// sockets have the port, too.
    bool bindTo(const Endpoint& local, bool isShared, std::string& error);
    /// Receives also what is sent to a multicast group.
    bool joinGroup(const Endpoint& group, std::string& error);
    /// Sends to `peer` from now on, from a port of its own unless it is bound; to a group with one
    /// hop, heard on this machine too.
    bool connectTo(const Endpoint& peer, std::string& error);

    /// Where a connected socket sends from.
    Endpoint localEndpoint() const;

    SendResult send(ByteView bytes);
    SendResult sendTo(const Endpoint& peer, ByteView bytes);
    /// The next datagram, if one waits.
    std::optional<Datagram> receive();

    /// Waits until a datagram is there, `wake` was called, or `timeout` is over.
    void wait(BusTime timeout);
    /// Ends a `wait`, the present one or the next. Any thread may call it.
    void wake();

private:
    struct Private;

    std::unique_ptr<Private> m;
};

} // namespace cannetwork
