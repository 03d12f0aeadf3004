#pragma once

#include "message/Message.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zul {

/// One row of the status window.
struct MESSAGE_INTERFACE_EXPORT DeviceStatusEntry
{
    std::string label;
    std::string value;
    std::string color; ///< background of the value, as a `QColor` name such as "#dcffdc"
};

/// A device's report of its own state; each report replaces the one before.
class MESSAGE_INTERFACE_EXPORT MessageStatus : public Message
{
public:
    MessageStatus();
    ~MessageStatus() override;
    MessageStatus(const MessageStatus& other);
    MessageStatus& operator=(const MessageStatus& other);

    /// Bus traffic in bits per second, in two counters whose sum counts.
    std::uint32_t bitCount0 = 0;
    std::uint32_t bitCount1 = 0;
    /// Frames per second, in two counters whose sum counts.
    std::uint32_t messageCount0 = 0;
    std::uint32_t messageCount1 = 0;
    /// Rows of the status window, which shows the first 20.
    std::vector<DeviceStatusEntry> entries;
};

} // namespace zul
