#include "modules/virtual/FaultConfinement.h"

#include <algorithm>

namespace canvirtual {

namespace {

constexpr int passiveLimit = 127;
constexpr int busOffLimit = 255;
constexpr int transmitErrorStep = 8;
constexpr int recoveryBits = 128 * 11;

} // namespace

FaultConfinement::FaultConfinement(BusTime bitTime)
    : m_recoverySpan(restartDelay + recoveryBits * bitTime)
{
}

void FaultConfinement::transmitError(BusTime time)
{
    if (m_busOff) {
        return;
    }
    m_transmitErrors += transmitErrorStep;
    if (m_transmitErrors > busOffLimit) {
        m_busOff = true;
        m_recoversAt = time + m_recoverySpan;
    }
}

void FaultConfinement::receiveError()
{
    m_receiveErrors = std::min(m_receiveErrors + 1, busOffLimit);
}

void FaultConfinement::transmitted()
{
    m_transmitErrors = std::max(m_transmitErrors - 1, 0);
}

void FaultConfinement::received()
{
    // A receiver that was passive comes back to just below the limit at once.
    m_receiveErrors =
        m_receiveErrors > passiveLimit ? passiveLimit - 8 : std::max(m_receiveErrors - 1, 0);
}

void FaultConfinement::update(BusTime time)
{
    if (m_busOff && time >= m_recoversAt) {
        m_busOff = false;
        m_recoversAt = never;
        m_transmitErrors = 0;
        m_receiveErrors = 0;
    }
}

BusTime FaultConfinement::recoversAt() const
{
    return m_recoversAt;
}

bool FaultConfinement::isPassive() const
{
    return m_transmitErrors > passiveLimit || m_receiveErrors > passiveLimit;
}

DeviceStatus FaultConfinement::status() const
{
    if (m_busOff) {
        return DeviceStatus::BusOff;
    }
    return isPassive() ? DeviceStatus::BusPassive : DeviceStatus::Open;
}

} // namespace canvirtual
