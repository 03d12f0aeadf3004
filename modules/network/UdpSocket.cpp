#include "modules/network/UdpSocket.h"

#include "modules/support/Clocks.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <net/if.h>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

// Everything here that depends on the operating system; POSIX, and what Linux tells besides.

namespace cannetwork {

namespace {

constexpr int receiveBufferBytes = 4 * 1024 * 1024;
constexpr std::size_t largestDatagram = 65'536;

std::string failure(const char* what)
{
    return std::string(what) + ": " + std::strerror(errno); // NOLINT(concurrency-mt-unsafe)
}

/// The system's form of an endpoint.
struct SystemAddress
{
    sockaddr_storage storage{};
    socklen_t size = 0;

    SystemAddress() : size(sizeof storage) {}

    explicit SystemAddress(const Endpoint& endpoint)
    {
        if (endpoint.isV6) {
            sockaddr_in6 v6{};
            v6.sin6_family = AF_INET6;
            v6.sin6_port = htons(endpoint.port);
            v6.sin6_scope_id = endpoint.scope;
            std::memcpy(&v6.sin6_addr, endpoint.address.data(), sizeof v6.sin6_addr);
            set(&v6, sizeof v6);
        } else {
            sockaddr_in v4{};
            v4.sin_family = AF_INET;
            v4.sin_port = htons(endpoint.port);
            std::memcpy(&v4.sin_addr, endpoint.address.data(), sizeof v4.sin_addr);
            set(&v4, sizeof v4);
        }
    }

    Endpoint endpoint() const
    {
        Endpoint endpoint;
        if (storage.ss_family == AF_INET6) {
            sockaddr_in6 v6{};
            std::memcpy(&v6, &storage, sizeof v6);
            endpoint.isV6 = true;
            endpoint.port = ntohs(v6.sin6_port);
            endpoint.scope = v6.sin6_scope_id;
            std::memcpy(endpoint.address.data(), &v6.sin6_addr, sizeof v6.sin6_addr);
        } else {
            sockaddr_in v4{};
            std::memcpy(&v4, &storage, sizeof v4);
            endpoint.port = ntohs(v4.sin_port);
            std::memcpy(endpoint.address.data(), &v4.sin_addr, sizeof v4.sin_addr);
        }
        return endpoint;
    }

    sockaddr* pointer() { return reinterpret_cast<sockaddr*>(&storage); } // NOLINT

private:
    void set(const void* address, std::size_t bytes)
    {
        std::memcpy(&storage, address, bytes);
        size = static_cast<socklen_t>(bytes);
    }
};

bool setOption(int handle, int level, int name, int value)
{
    return ::setsockopt(handle, level, name, &value, sizeof value) == 0;
}

void closeHandle(int& handle)
{
    if (handle >= 0) {
        ::close(handle);
        handle = -1;
    }
}

void makeNonBlocking(int handle)
{
    ::fcntl(handle, F_SETFL, ::fcntl(handle, F_GETFL) | O_NONBLOCK);
    ::fcntl(handle, F_SETFD, FD_CLOEXEC);
}

} // namespace

std::optional<Endpoint> Endpoint::parse(const std::string& address, std::uint16_t port)
{
    addrinfo hints{};
    hints.ai_flags = AI_NUMERICHOST; // a name server could hold up the program
    hints.ai_socktype = SOCK_DGRAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(address.c_str(), nullptr, &hints, &found) != 0 || found == nullptr) {
        return std::nullopt;
    }
    SystemAddress system;
    std::memcpy(&system.storage, found->ai_addr,
                std::min<std::size_t>(found->ai_addrlen, sizeof system.storage));
    ::freeaddrinfo(found);
    Endpoint endpoint = system.endpoint();
    endpoint.port = port;
    return endpoint;
}

bool Endpoint::isGroup() const
{
    return isV6 ? address[0] == 0xFF : (address[0] & 0xF0U) == 0xE0U;
}

std::string Endpoint::text() const
{
    std::array<char, INET6_ADDRSTRLEN> text{};
    ::inet_ntop(isV6 ? AF_INET6 : AF_INET, address.data(), text.data(), text.size());
    const std::string host = isV6 ? "[" + std::string(text.data()) + "]" : text.data();
    return host + ":" + std::to_string(port);
}

struct UdpSocket::Private
{
    int handle = -1;
    std::array<int, 2> pipe{-1, -1};
    std::uint32_t drops = 0;
    std::vector<std::uint8_t> buffer = std::vector<std::uint8_t>(largestDatagram);

    bool make(bool isV6, std::string& error)
    {
        if (handle >= 0) {
            return true;
        }
        handle = ::socket(isV6 ? AF_INET6 : AF_INET, SOCK_DGRAM, 0);
        if (handle < 0 || ::pipe(pipe.data()) != 0) {
            error = failure("No socket");
            return false;
        }
        makeNonBlocking(handle);
        makeNonBlocking(pipe[0]);
        makeNonBlocking(pipe[1]);
        // As much as the system allows: bursts come faster than the thread may run.
        setOption(handle, SOL_SOCKET, SO_RCVBUF, receiveBufferBytes);
#ifdef SO_TIMESTAMPNS
        setOption(handle, SOL_SOCKET, SO_TIMESTAMPNS, 1);
#endif
#ifdef SO_RXQ_OVFL
        setOption(handle, SOL_SOCKET, SO_RXQ_OVFL, 1);
#endif
        return true;
    }

    void readControl(msghdr& header, Datagram& datagram)
    {
        for (cmsghdr* part = CMSG_FIRSTHDR(&header); part != nullptr;
             part = CMSG_NXTHDR(&header, part)) {
            if (part->cmsg_level != SOL_SOCKET) {
                continue;
            }
#ifdef SO_TIMESTAMPNS
            if (part->cmsg_type == SO_TIMESTAMPNS) {
                timespec stamp{};
                std::memcpy(&stamp, CMSG_DATA(part), sizeof stamp);
                datagram.time = stamp.tv_sec * second + stamp.tv_nsec;
            }
#endif
#ifdef SO_RXQ_OVFL
            if (part->cmsg_type == SO_RXQ_OVFL) {
                std::memcpy(&drops, CMSG_DATA(part), sizeof drops);
            }
#endif
        }
        datagram.kernelDrops = drops;
    }
};

UdpSocket::UdpSocket() : m(std::make_unique<Private>()) {}

UdpSocket::~UdpSocket()
{
    closeHandle(m->handle);
    closeHandle(m->pipe[0]);
    closeHandle(m->pipe[1]);
}

bool UdpSocket::bindTo(const Endpoint& local, bool isShared, std::string& error)
{
    if (!m->make(local.isV6, error)) {
        return false;
    }
    if (isShared) {
        setOption(m->handle, SOL_SOCKET, SO_REUSEADDR, 1);
    }
    SystemAddress address(local);
    if (::bind(m->handle, address.pointer(), address.size) != 0) {
        error = failure(("Port " + std::to_string(local.port) + " cannot be used").c_str());
        return false;
    }
    return true;
}

bool UdpSocket::joinGroup(const Endpoint& group, std::string& error)
{
    int result = -1;
    if (group.isV6) {
        ipv6_mreq request{};
        std::memcpy(&request.ipv6mr_multiaddr, group.address.data(),
                    sizeof request.ipv6mr_multiaddr);
        request.ipv6mr_interface = group.scope;
        result = ::setsockopt(m->handle, IPPROTO_IPV6, IPV6_JOIN_GROUP, &request, sizeof request);
    } else {
        ip_mreq request{};
        std::memcpy(&request.imr_multiaddr, group.address.data(), sizeof request.imr_multiaddr);
        result = ::setsockopt(m->handle, IPPROTO_IP, IP_ADD_MEMBERSHIP, &request, sizeof request);
    }
    if (result != 0) {
        error = failure(("Group " + group.text() + " cannot be joined").c_str());
        return false;
    }
    return true;
}

bool UdpSocket::connectTo(const Endpoint& peer, std::string& error)
{
    if (!m->make(peer.isV6, error)) {
        return false;
    }
    if (peer.isGroup()) {
        const int level = peer.isV6 ? IPPROTO_IPV6 : IPPROTO_IP;
        setOption(m->handle, level, peer.isV6 ? IPV6_MULTICAST_HOPS : IP_MULTICAST_TTL, 1);
        setOption(m->handle, level, peer.isV6 ? IPV6_MULTICAST_LOOP : IP_MULTICAST_LOOP, 1);
    }
    SystemAddress address(peer);
    if (::connect(m->handle, address.pointer(), address.size) != 0) {
        error = failure(("No way to " + peer.text()).c_str());
        return false;
    }
    return true;
}

Endpoint UdpSocket::localEndpoint() const
{
    SystemAddress address;
    ::getsockname(m->handle, address.pointer(), &address.size);
    return address.endpoint();
}

namespace {

UdpSocket::SendResult resultOf(ssize_t sent)
{
    if (sent >= 0) {
        return UdpSocket::SendResult::Sent;
    }
    const bool isFull = errno == EAGAIN || errno == ENOBUFS;
    return isFull ? UdpSocket::SendResult::Full : UdpSocket::SendResult::Failed;
}

} // namespace

UdpSocket::SendResult UdpSocket::send(ByteView bytes)
{
    return resultOf(::send(m->handle, bytes.data, bytes.size, 0));
}

UdpSocket::SendResult UdpSocket::sendTo(const Endpoint& peer, ByteView bytes)
{
    SystemAddress address(peer);
    return resultOf(
        ::sendto(m->handle, bytes.data, bytes.size, 0, address.pointer(), address.size));
}

std::optional<Datagram> UdpSocket::receive()
{
    SystemAddress address;
    iovec part{m->buffer.data(), m->buffer.size()};
    alignas(cmsghdr) std::array<char, 256> control{};
    msghdr header{};
    header.msg_name = address.pointer();
    header.msg_namelen = address.size;
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    header.msg_control = control.data();
    header.msg_controllen = control.size();
    const ssize_t size = ::recvmsg(m->handle, &header, 0);
    if (size < 0) {
        return std::nullopt;
    }
    Datagram datagram;
    datagram.bytes = {m->buffer.data(), static_cast<std::size_t>(size)};
    datagram.from = address.endpoint();
    m->readControl(header, datagram);
    if (datagram.time == 0) {
        datagram.time = wallNow();
    }
    return datagram;
}

void UdpSocket::wait(BusTime timeout)
{
    std::array<pollfd, 2> handles{{{m->handle, POLLIN, 0}, {m->pipe[0], POLLIN, 0}}};
    const timespec span{timeout / second, timeout % second};
    ::ppoll(handles.data(), handles.size(), timeout == never ? nullptr : &span, nullptr);
    std::array<char, 64> wakes{};
    while (::read(m->pipe[0], wakes.data(), wakes.size()) > 0) {
    }
}

void UdpSocket::wake()
{
    const char byte = 0;
    // A full pipe wakes as well.
    [[maybe_unused]] const ssize_t written = ::write(m->pipe[1], &byte, 1);
}

} // namespace cannetwork
