#include "message/Device.h"

#include <utility>

Device::Device() = default;

Device::~Device() = default;

DeviceInfo Device::info()
{
    return m_info;
}

std::string Device::errorMsg()
{
    return m_errorMsg;
}

void Device::setErrorMsg(const std::string& errorMsg)
{
    m_errorMsg = errorMsg;
}

void Device::setProperty(std::string key, std::string value)
{
    m_properties[std::move(key)] = std::move(value);
}

std::map<std::string, std::string>* Device::properties()
{
    return &m_properties;
}

std::string Device::getStringProp(const std::string& key)
{
    const auto found = m_properties.find(key);
    return found != m_properties.end() ? found->second : std::string();
}
