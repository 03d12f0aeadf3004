#pragma once

#include "modules/network/DatagramCodec.h"
#include "modules/network/MsgPack.h"

namespace cannetwork {

// The interface "udp_multicast" of python-can: a datagram is one frame, a MessagePack map of the
// attributes of `can.Message` by their names:
//
// | key                     | value                                              |
// |-------------------------|----------------------------------------------------|
// | timestamp               | seconds since 1970                                 |
// | arbitration_id          | identifier                                         |
// | is_extended_id, is_remote_frame, is_error_frame, is_fd | yes or no           |
// | bitrate_switch, error_state_indicator                  | yes or no           |
// | channel                 | anything                                           |
// | dlc                     | payload bytes, 0 to 64, or asked for by a remote frame |
// | data                    | the payload                                        |

/// Values of further keys are gone over; absent keys count as 0 or no.
class PythonCanDecoder : public DatagramDecoder
{
public:
    DatagramFault decode(ByteView datagram, std::vector<BusFrame>& frames) override;
};

/// `frame.time` goes into the datagram as its time stamp.
class PythonCanEncoder : public DatagramEncoder
{
public:
    bool add(const BusFrame& frame) override;
    bool isEmpty() const override { return m_writer.bytes().size == 0; }
    bool isComplete() const override { return !isEmpty(); }
    ByteView finish() override { return m_writer.bytes(); }
    void clear() override { m_writer.clear(); }

private:
    static constexpr std::size_t longest = 320;

    PackWriter<longest> m_writer;
};

} // namespace cannetwork
