#pragma once

#include "modules/network/DatagramCodec.h"
#include "modules/network/NetworkSettings.h"
#include "modules/network/UdpSocket.h"
#include "modules/support/MessageQueue.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace cannetwork {

/// What has happened on a link since it was opened, or since `clearCounters`.
struct LinkCounters
{
    std::uint64_t receivedFrames = 0;
    std::uint64_t sentFrames = 0;
    std::uint64_t receivedDatagrams = 0;
    std::uint64_t sentDatagrams = 0;
    std::uint64_t badDatagrams = 0;     ///< with a fault, dropped
    std::uint64_t foreignDatagrams = 0; ///< of other hosts than the peer, dropped
    std::uint64_t missingDatagrams = 0; ///< by the numbers of those that came
    std::uint64_t kernelDrops = 0;      ///< datagrams that the kernel had no room for
    std::uint64_t lostFrames = 0;       ///< that the queue towards the program had no room for
    std::uint64_t unsentFrames = 0;     ///< that the network did not take
};

/// The way to the other end: sockets, protocol, and the thread that receives, and that sends what
/// has waited for company long enough.
///
/// `send` may be called on any thread.
class NetworkLink
{
public:
    /// Opens the sockets and starts the thread, which puts what it receives into `queue`, which
    /// outlives the link. Null on failure, with the reason in `error`.
    static std::unique_ptr<NetworkLink> open(const NetworkSettings& settings, MessageQueue& queue,
                                             std::string& error);
    /// Sends what still waits and ends the thread.
    ~NetworkLink();
    NetworkLink(const NetworkLink&) = delete;
    NetworkLink& operator=(const NetworkLink&) = delete;

    /// Sends a frame that has no `frameProblem`, or lets it wait for others. False if the network
    /// has no room now and what waits is complete: the frame is not taken.
    bool send(const BusFrame& frame);

    LinkCounters counters() const;
    void clearCounters();

    /// Where it sends to, for people.
    const std::string& peerText() const { return m_peerText; }
    Protocol protocol() const { return m_settings.protocol; }

private:
    NetworkLink(NetworkSettings settings, MessageQueue& queue);

    bool openCannelloni(std::string& error);
    bool openPythonCan(std::string& error);
    void run();
    void receiveAll();
    void takeDatagram(const Datagram& datagram);
    void deliver();
    bool sendDatagram();
    void flushIfDue(BusTime now);
    BusTime timeToFlush();

    const NetworkSettings m_settings;
    MessageQueue& m_queue;
    Endpoint m_peer;
    std::string m_peerText;
    UdpSocket m_socket;                  ///< receives; sends, too, by cannelloni
    std::unique_ptr<UdpSocket> m_sender; ///< of a group: its port tells own datagrams from others
    Endpoint m_own;                      ///< where `m_sender` sends from
    std::unique_ptr<DatagramDecoder> m_decoder;

    // Of the thread alone.
    std::vector<BusFrame> m_frames;
    std::vector<std::unique_ptr<Message>> m_messages;

    std::mutex m_sendMutex; ///< guards the four below
    std::unique_ptr<DatagramEncoder> m_encoder;
    BusTime m_flushAt = never; ///< on the steady clock
    std::uint64_t m_waitingFrames = 0;
    std::vector<std::unique_ptr<Message>> m_echoes;

    mutable std::mutex m_counterMutex; ///< guards the three below
    LinkCounters m_counters;
    std::uint64_t m_missingBefore = 0;
    std::uint64_t m_dropsBefore = 0;

    std::atomic<bool> m_stop{false};
    std::thread m_thread;
};

} // namespace cannetwork
