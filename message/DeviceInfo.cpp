#include "message/DeviceInfo.h"

DeviceInfo::DeviceInfo() = default;

DeviceInfo::~DeviceInfo() = default;

DeviceInfo::DeviceInfo(const DeviceInfo& other) = default;

DeviceInfo::DeviceInfo(DeviceInfo&& other) noexcept = default;

DeviceInfo& DeviceInfo::operator=(const DeviceInfo& other) = default;

DeviceInfo& DeviceInfo::operator=(DeviceInfo&& other) noexcept = default;
