#include "modules/virtual/DeviceSettings.h"

#include "modules/support/NumberText.h"
#include "modules/virtual/BitTiming.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <limits>
#include <optional>

namespace canvirtual {

namespace {

constexpr std::int32_t defaultBitRate = 1'000'000;
constexpr std::uint32_t defaultDbtp = packDbtp(0, 0, 30, 7, 7);
constexpr std::uint32_t defaultTdcr = 0x2000;

std::string hexText(std::uint32_t value)
{
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "0x%08X", value);
    return text.data();
}

} // namespace

DeviceSettings::DeviceSettings()
    : m_bitRate(defaultBitRate),
      m_btr(btrForBitRate(defaultBitRate)),
      m_nbtp(nbtpForBitRate(defaultBitRate)),
      m_dbtp(defaultDbtp),
      m_tdcr(defaultTdcr)
{
}

bool DeviceSettings::set(const std::string& key, const std::string& value)
{
    if (setText(key, value)) {
        return true;
    }
    const std::optional<std::uint32_t> number = parseNumber(value);
    // A text that is no number is tried as 0 on a copy: what counts is whether the key is known.
    if (!number) {
        DeviceSettings discarded = *this;
        return discarded.setNumber(key, 0);
    }
    return setNumber(key, *number);
}

bool DeviceSettings::setText(const std::string& key, const std::string& value)
{
    if (key == key::interfaceName) {
        m_interfaceName = value;
        return true;
    }
    if (key == key::busName) {
        m_busName = value;
        return true;
    }
    return false;
}

bool DeviceSettings::setNumber(const std::string& key, std::uint32_t number)
{
    if (key == key::bitRate) {
        if (number > 0 && number <= static_cast<std::uint32_t>(fdClockHz)) {
            setBitRate(static_cast<std::int32_t>(number));
        }
    } else if (key == key::btr) {
        setBtr(number & btrMask);
    } else if (key == key::nbtp) {
        setNbtp(number & nbtpMask);
    } else if (key == key::dbtp) {
        m_dbtp = number & dbtpMask;
    } else if (key == key::tdcr) {
        m_tdcr = number & tdcrMask;
    } else if (key == key::receiveOwn) {
        if (number <= 1) {
            m_receiveOwn = number == 1;
        }
    } else if (key == key::scenario) {
        if (number < static_cast<std::uint32_t>(scenarioCount)) {
            m_scenario = static_cast<ScenarioId>(number);
        }
    } else {
        return setNodeNumber(key, number);
    }
    return true;
}

bool DeviceSettings::setNodeNumber(const std::string& key, std::uint32_t number)
{
    if (key == key::node) {
        if (number < static_cast<std::uint32_t>(nodeKindCount)) {
            m_node.kind = static_cast<NodeKind>(number);
        }
    } else if (key == key::nodeId) {
        if (number > 0 && number <= maxNodeId) {
            m_node.id = static_cast<std::uint8_t>(number);
        }
    } else if (key == key::nodePacing) {
        if (number < static_cast<std::uint32_t>(nodePacingCount)) {
            m_node.pacing = static_cast<int>(number);
        }
    } else if (key == key::nodeFault) {
        if (number < static_cast<std::uint32_t>(nodeFaultCount)) {
            m_node.fault = static_cast<NodeFault>(number);
        }
    } else {
        return false;
    }
    return true;
}

void DeviceSettings::setBitRate(std::int32_t bitRate)
{
    if (bitRate == m_bitRate) {
        return;
    }
    // The registers decide: an odd bit rate becomes the nearest one they can make.
    setNbtp(nbtpForBitRate(bitRate));
}

void DeviceSettings::setBtr(std::uint32_t btr)
{
    m_btr = btr;
    m_bitRate = bitRateFromBtr(btr);
    if (bitRateFromNbtp(m_nbtp) != m_bitRate) {
        m_nbtp = nbtpForBitRate(m_bitRate);
    }
}

void DeviceSettings::setNbtp(std::uint32_t nbtp)
{
    m_nbtp = nbtp;
    m_bitRate = bitRateFromNbtp(nbtp);
    if (bitRateFromBtr(m_btr) != m_bitRate) {
        m_btr = btrForBitRate(m_bitRate);
    }
}

BusRates DeviceSettings::rates() const
{
    return {m_bitRate, bitRateFromDbtp(m_dbtp)};
}

void DeviceSettings::writeTo(std::map<std::string, std::string>& properties) const
{
    properties[key::interfaceName] = m_interfaceName;
    properties[key::busName] = m_busName;
    properties[key::bitRate] = std::to_string(m_bitRate);
    properties[key::btr] = std::to_string(m_btr);
    properties[key::nbtp] = hexText(m_nbtp);
    properties[key::dbtp] = hexText(m_dbtp);
    properties[key::tdcr] = hexText(m_tdcr);
    properties[key::receiveOwn] = m_receiveOwn ? "1" : "0";
    properties[key::scenario] = std::to_string(static_cast<int>(m_scenario));
    properties[key::node] = std::to_string(static_cast<int>(m_node.kind));
    properties[key::nodeId] = std::to_string(m_node.id);
    properties[key::nodePacing] = std::to_string(m_node.pacing);
    properties[key::nodeFault] = std::to_string(static_cast<int>(m_node.fault));
}

} // namespace canvirtual
