#pragma once

#include "modules/virtual/FrameLength.h"
#include "modules/virtual/NodeSettings.h"
#include "modules/virtual/ScenarioId.h"

#include <cstdint>
#include <map>
#include <string>

namespace canvirtual {

/// Keys of the device's property map.
namespace key {
constexpr const char* interfaceName = "InterfaceName";
constexpr const char* busName = "BusName";
constexpr const char* bitRate = "BitRate";
constexpr const char* btr = "BTR";
constexpr const char* nbtp = "NBTP";
constexpr const char* dbtp = "DBTP";
constexpr const char* tdcr = "TDCR";
constexpr const char* receiveOwn = "ReceiveOwn";
constexpr const char* scenario = "Scenario";
constexpr const char* node = "Node";
constexpr const char* nodeId = "NodeId";
constexpr const char* nodePacing = "NodePacing";
constexpr const char* nodeFault = "NodeFault";
} // namespace key

/// The device's configuration, kept free of contradictions.
///
/// Bit rate, BTR and NBTP tell the same thing: setting one of them changes each of the others that
/// gives another bit rate, and leaves alone those that already agree. So the values of a saved
/// configuration give that configuration again, in whatever order they are set.
class DeviceSettings
{
public:
    DeviceSettings();

    /// Takes the value text of one property. Numbers are decimal, hexadecimal with "0x" or octal
    /// with "0", a negative one standing for its 32-bit pattern; a text that is no number, or no
    /// value of the property, changes nothing. Returns false if `key` is unknown.
    bool set(const std::string& key, const std::string& value);

    /// Writes all values into a property map, as the texts the editors expect.
    void writeTo(std::map<std::string, std::string>& properties) const;

    const std::string& interfaceName() const { return m_interfaceName; }

    const std::string& busName() const { return m_busName; }

    /// Bit rates in bits per second, both positive.
    BusRates rates() const;

    bool receiveOwn() const { return m_receiveOwn; }

    ScenarioId scenario() const { return m_scenario; }

    const NodeSettings& node() const { return m_node; }

    std::uint32_t btr() const { return m_btr; }

    std::uint32_t nbtp() const { return m_nbtp; }

private:
    bool setText(const std::string& key, const std::string& value);
    bool setNumber(const std::string& key, std::uint32_t number);
    bool setNodeNumber(const std::string& key, std::uint32_t number);
    void setBitRate(std::int32_t bitRate);
    void setBtr(std::uint32_t btr);
    void setNbtp(std::uint32_t nbtp);

    std::string m_interfaceName = "CAN 1";
    std::string m_busName = "Bus A";
    std::int32_t m_bitRate = 0;
    std::uint32_t m_btr = 0;
    std::uint32_t m_nbtp = 0;
    std::uint32_t m_dbtp = 0;
    std::uint32_t m_tdcr = 0;
    bool m_receiveOwn = false;
    ScenarioId m_scenario = ScenarioId::None;
    NodeSettings m_node;
};

} // namespace canvirtual
