#pragma once

#include "message/MessageCan.h"

#include <cstdint>
#include <optional>
#include <string>

class Filter;
class MessageContainer;
struct DialSettings;

/// What a Data Visualization window takes from the traffic: the last frame that was its own.
class DialFeed
{
public:
    enum class Update {
        Ignored, ///< the batch of another interface
        Counted, ///< no frame of the window's identifier
        Matched  ///< `last` is another frame
    };

    /// Of several frames with the identifier in a batch, the last one stays. `inputInterface` is
    /// that of `settings`, as batches name it.
    Update receive(const MessageContainer& batch, const DialSettings& settings,
                   const std::string& inputInterface, const Filter& filter);

    /// A copy of the last frame that matched, or none.
    const std::optional<zul::MessageCan>& last() const { return m_last; }
    /// Frames of all identifiers so far, whether taken or not.
    std::uint32_t receivedTotal() const { return m_receivedTotal; }

private:
    std::optional<zul::MessageCan> m_last;
    std::uint32_t m_receivedTotal = 0;
};
