#pragma once

#include "message/DeviceStatus.h"
#include "modules/virtual/Vocabulary.h"

namespace canvirtual {

/// Error counters and error state of one CAN controller (ISO 11898-1, fault confinement).
///
/// The controller leaves bus-off by itself: it waits `restartDelay`, as drivers do, and then for
/// 128 times 11 recessive bits.
class FaultConfinement
{
public:
    static constexpr BusTime restartDelay = 2 * second;

    /// `bitTime` is that of the nominal bit rate, in nanoseconds.
    explicit FaultConfinement(BusTime bitTime);

    void transmitError(BusTime time);
    void receiveError();
    void transmitted();
    void received();

    /// Leaves bus-off if its time is over at `time`.
    void update(BusTime time);

    bool isBusOff() const { return m_busOff; }

    /// When bus-off ends; `never` if the controller is not bus-off.
    BusTime recoversAt() const;

    bool isPassive() const;
    /// `Open`, `BusPassive` or `BusOff`.
    DeviceStatus status() const;

    int transmitErrors() const { return m_transmitErrors; }

    int receiveErrors() const { return m_receiveErrors; }

private:
    BusTime m_recoverySpan = 0;
    BusTime m_recoversAt = never;
    int m_transmitErrors = 0;
    int m_receiveErrors = 0;
    bool m_busOff = false;
};

} // namespace canvirtual
