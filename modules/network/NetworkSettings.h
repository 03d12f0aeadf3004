#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>

namespace cannetwork {

/// Keys of the device's property map.
namespace key {
constexpr const char* interfaceName = "InterfaceName";
constexpr const char* protocol = "Protocol";
constexpr const char* peer = "PeerAddress";
constexpr const char* peerPort = "PeerPort";
constexpr const char* localPort = "LocalPort";
constexpr const char* flushTime = "FlushTime";
constexpr const char* acceptOthers = "AcceptOthers";
constexpr const char* group = "Group";
constexpr const char* groupPort = "GroupPort";
constexpr const char* bitRate = "BitRate";
constexpr const char* receiveOwn = "ReceiveOwn";
} // namespace key

enum class Protocol : std::uint32_t { Cannelloni, PythonCan };

/// Names of the protocols, by their numbers.
constexpr std::array<const char*, 2> protocolNames{"cannelloni 2", "python-can udp_multicast"};

/// The device's configuration. The multicast group is the one that python-can uses for IPv4 where
/// nothing else is said, and the port its own; cannelloni's port is 20000.
class NetworkSettings
{
public:
    /// Takes the value text of one property; one that is no value of it changes nothing. False if
    /// `key` is unknown.
    bool set(const std::string& key, const std::string& value);
    /// Writes all values into a property map, as the texts the editors expect.
    void writeTo(std::map<std::string, std::string>& properties) const;

    std::string interfaceName = "Network 1";
    Protocol protocol = Protocol::Cannelloni;
    std::string peer = "127.0.0.1"; ///< numeric
    std::uint16_t peerPort = 20'000;
    std::uint16_t localPort = 20'000;
    std::uint32_t flushMicroseconds = 1'000; ///< frames wait that long for others to go with
    bool acceptOthers = false;               ///< datagrams of other hosts than the peer
    std::string group = "239.74.163.2";
    std::uint16_t groupPort = 43'113;
    std::int32_t bitRate = 1'000'000; ///< of the bus at the other end, for the load; bit/s
    bool receiveOwn = false;

private:
    bool setText(const std::string& key, const std::string& value);
    void setNumber(const std::string& key, std::uint32_t number);
};

} // namespace cannetwork
