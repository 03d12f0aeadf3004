#include "modules/network/NetworkSettings.h"

#include "modules/support/NumberText.h"

#include <algorithm>
#include <limits>

namespace cannetwork {

namespace {

constexpr std::uint32_t longestFlush = 1'000'000; // microseconds

void setPort(std::uint16_t& port, std::uint32_t number)
{
    if (number >= 1 && number <= std::numeric_limits<std::uint16_t>::max()) {
        port = static_cast<std::uint16_t>(number);
    }
}

void setFlag(bool& flag, std::uint32_t number)
{
    if (number <= 1) {
        flag = number == 1;
    }
}

bool isNumberKey(const std::string& key)
{
    constexpr std::array<const char*, 8> numberKeys{
        key::protocol,     key::peerPort,  key::localPort, key::flushTime,
        key::acceptOthers, key::groupPort, key::bitRate,   key::receiveOwn};
    return std::any_of(numberKeys.begin(), numberKeys.end(),
                       [&key](const char* known) { return key == known; });
}

} // namespace

bool NetworkSettings::set(const std::string& key, const std::string& value)
{
    if (setText(key, value)) {
        return true;
    }
    if (!isNumberKey(key)) {
        return false;
    }
    if (const auto number = canmodule::parseNumber(value)) {
        setNumber(key, *number);
    }
    return true;
}

bool NetworkSettings::setText(const std::string& key, const std::string& value)
{
    if (key == key::interfaceName) {
        interfaceName = value;
    } else if (key == key::peer) {
        peer = canmodule::trimmed(value);
    } else if (key == key::group) {
        group = canmodule::trimmed(value);
    } else {
        return false;
    }
    return true;
}

void NetworkSettings::setNumber(const std::string& key, std::uint32_t number)
{
    if (key == key::protocol) {
        if (number < protocolNames.size()) {
            protocol = static_cast<Protocol>(number);
        }
    } else if (key == key::peerPort) {
        setPort(peerPort, number);
    } else if (key == key::localPort) {
        setPort(localPort, number);
    } else if (key == key::groupPort) {
        setPort(groupPort, number);
    } else if (key == key::flushTime) {
        if (number <= longestFlush) {
            flushMicroseconds = number;
        }
    } else if (key == key::acceptOthers) {
        setFlag(acceptOthers, number);
    } else if (key == key::receiveOwn) {
        setFlag(receiveOwn, number);
    } else if (key == key::bitRate) {
        if (number >= 1 && number <= std::numeric_limits<std::int32_t>::max()) {
            bitRate = static_cast<std::int32_t>(number);
        }
    }
}

void NetworkSettings::writeTo(std::map<std::string, std::string>& properties) const
{
    properties[key::interfaceName] = interfaceName;
    properties[key::protocol] = std::to_string(static_cast<std::uint32_t>(protocol));
    properties[key::peer] = peer;
    properties[key::peerPort] = std::to_string(peerPort);
    properties[key::localPort] = std::to_string(localPort);
    properties[key::flushTime] = std::to_string(flushMicroseconds);
    properties[key::acceptOthers] = acceptOthers ? "1" : "0";
    properties[key::group] = group;
    properties[key::groupPort] = std::to_string(groupPort);
    properties[key::bitRate] = std::to_string(bitRate);
    properties[key::receiveOwn] = receiveOwn ? "1" : "0";
}

} // namespace cannetwork
