#include "modules/network/NetworkLink.h"

#include "modules/network/Cannelloni.h"
#include "modules/network/PythonCan.h"
#include "modules/support/Clocks.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace cannetwork {

namespace {

constexpr BusTime retryPause = millisecond;
constexpr int datagramsATurn = 256; ///< received before what waits is sent

Endpoint anyAddress(bool isV6, std::uint16_t port)
{
    Endpoint endpoint;
    endpoint.isV6 = isV6;
    endpoint.port = port;
    return endpoint;
}

} // namespace

NetworkLink::NetworkLink(NetworkSettings settings, MessageQueue& queue)
    : m_settings(std::move(settings)), m_queue(queue)
{
}

std::unique_ptr<NetworkLink> NetworkLink::open(const NetworkSettings& settings, MessageQueue& queue,
                                               std::string& error)
{
    std::unique_ptr<NetworkLink> link(new NetworkLink(settings, queue));
    const bool isOpen = settings.protocol == Protocol::Cannelloni ? link->openCannelloni(error)
                                                                  : link->openPythonCan(error);
    if (!isOpen) {
        return nullptr;
    }
    link->m_peerText = link->m_peer.text();
    link->m_thread = std::thread([raw = link.get()] { raw->run(); });
    return link;
}

bool NetworkLink::openCannelloni(std::string& error)
{
    const auto peer = Endpoint::parse(m_settings.peer, m_settings.peerPort);
    if (!peer || peer->isGroup()) {
        error = "The peer address \"" + m_settings.peer + "\" is no numeric address of a host";
        return false;
    }
    m_peer = *peer;
    m_decoder = std::make_unique<CannelloniDecoder>();
    m_encoder = std::make_unique<CannelloniEncoder>();
    return m_socket.bindTo(anyAddress(m_peer.isV6, m_settings.localPort), false, error);
}

bool NetworkLink::openPythonCan(std::string& error)
{
    const auto group = Endpoint::parse(m_settings.group, m_settings.groupPort);
    if (!group || !group->isGroup()) {
        error = "The group \"" + m_settings.group + "\" is no numeric multicast address";
        return false;
    }
    m_peer = *group;
    m_decoder = std::make_unique<PythonCanDecoder>();
    m_encoder = std::make_unique<PythonCanEncoder>();
    m_sender = std::make_unique<UdpSocket>();
    if (!m_socket.bindTo(anyAddress(m_peer.isV6, m_settings.groupPort), true, error) ||
        !m_socket.joinGroup(m_peer, error) || !m_sender->connectTo(m_peer, error)) {
        return false;
    }
    m_own = m_sender->localEndpoint();
    return true;
}

NetworkLink::~NetworkLink()
{
    if (m_thread.joinable()) {
        m_stop = true;
        m_socket.wake();
        m_thread.join();
    }
    const std::lock_guard<std::mutex> lock(m_sendMutex);
    if (m_encoder != nullptr) {
        sendDatagram();
    }
}

void NetworkLink::run()
{
    while (!m_stop) {
        m_socket.wait(timeToFlush());
        receiveAll();
        flushIfDue(steadyNow());
        deliver();
    }
}

BusTime NetworkLink::timeToFlush()
{
    const std::lock_guard<std::mutex> lock(m_sendMutex);
    return m_flushAt == never ? never : std::max<BusTime>(m_flushAt - steadyNow(), 0);
}

void NetworkLink::receiveAll()
{
    for (int i = 0; i < datagramsATurn && !m_stop; ++i) {
        const auto datagram = m_socket.receive();
        if (!datagram) {
            return;
        }
        takeDatagram(*datagram);
    }
}

void NetworkLink::takeDatagram(const Datagram& datagram)
{
    if (m_sender != nullptr && datagram.from == m_own) {
        return; // the group brings back what was sent
    }
    const bool isForeign =
        m_sender == nullptr && !m_settings.acceptOthers && !datagram.from.isSameHost(m_peer);
    m_frames.clear();
    DatagramFault fault = DatagramFault::None;
    if (!isForeign) {
        fault = m_decoder->decode(datagram.bytes, m_frames);
    }
    for (BusFrame& frame : m_frames) {
        frame.time = datagram.time;
        m_messages.push_back(messageFromFrame(frame));
    }
    const std::lock_guard<std::mutex> lock(m_counterMutex);
    ++m_counters.receivedDatagrams;
    m_counters.foreignDatagrams += isForeign ? 1 : 0;
    m_counters.badDatagrams += fault != DatagramFault::None ? 1 : 0;
    m_counters.receivedFrames += m_frames.size();
    // A late datagram takes back what was counted, perhaps before the counters were cleared.
    const std::uint64_t missing = m_decoder->missing();
    m_counters.missingDatagrams = missing - std::min(missing, m_missingBefore);
    m_counters.kernelDrops = datagram.kernelDrops - m_dropsBefore;
}

// What was received, and what was sent if that is wanted, goes to the program.
void NetworkLink::deliver()
{
    {
        const std::lock_guard<std::mutex> lock(m_sendMutex);
        std::move(m_echoes.begin(), m_echoes.end(), std::back_inserter(m_messages));
        m_echoes.clear();
    }
    if (m_messages.empty()) {
        return;
    }
    const std::size_t dropped = m_queue.push(m_messages);
    if (dropped > 0) {
        const std::lock_guard<std::mutex> lock(m_counterMutex);
        m_counters.lostFrames += dropped;
    }
}

bool NetworkLink::send(const BusFrame& frame)
{
    BusFrame stamped = frame;
    stamped.time = wallNow();
    {
        const std::lock_guard<std::mutex> lock(m_sendMutex);
        if (!m_encoder->add(stamped) && !(sendDatagram() && m_encoder->add(stamped))) {
            return false;
        }
        ++m_waitingFrames;
        if (m_settings.receiveOwn) {
            m_echoes.push_back(messageFromFrame(stamped));
        }
        if (m_encoder->isComplete() || m_settings.flushMicroseconds == 0) {
            if (sendDatagram() && !m_settings.receiveOwn) {
                return true;
            }
        } else if (m_flushAt == never) {
            m_flushAt = steadyNow() + m_settings.flushMicroseconds * microsecond;
        } else {
            return true; // the thread knows when to send
        }
    }
    m_socket.wake();
    return true;
}

// The mutex is held. False if the network has no room: the datagram then waits a moment. One that
// the network refuses is lost.
bool NetworkLink::sendDatagram()
{
    m_flushAt = never;
    if (m_encoder->isEmpty()) {
        return true;
    }
    const ByteView bytes = m_encoder->finish();
    const UdpSocket::SendResult result =
        m_sender != nullptr ? m_sender->send(bytes) : m_socket.sendTo(m_peer, bytes);
    if (result == UdpSocket::SendResult::Full) {
        m_flushAt = steadyNow() + retryPause;
        return false;
    }
    m_encoder->clear();
    const std::uint64_t frames = std::exchange(m_waitingFrames, 0);
    const bool isSent = result == UdpSocket::SendResult::Sent;
    const std::lock_guard<std::mutex> lock(m_counterMutex);
    m_counters.sentDatagrams += isSent ? 1 : 0;
    m_counters.sentFrames += isSent ? frames : 0;
    m_counters.unsentFrames += isSent ? 0 : frames;
    return true;
}

void NetworkLink::flushIfDue(BusTime now)
{
    const std::lock_guard<std::mutex> lock(m_sendMutex);
    if (m_flushAt <= now) {
        sendDatagram();
    }
}

LinkCounters NetworkLink::counters() const
{
    const std::lock_guard<std::mutex> lock(m_counterMutex);
    return m_counters;
}

void NetworkLink::clearCounters()
{
    const std::lock_guard<std::mutex> lock(m_counterMutex);
    m_missingBefore += m_counters.missingDatagrams;
    m_dropsBefore += m_counters.kernelDrops;
    m_counters = {};
}

} // namespace cannetwork
