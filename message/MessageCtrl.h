#pragma once

#include "message/Message.h"

#include <cstdint>

namespace zul {

/// A command to a device.
///
/// A schedule is sent as one batch, in this order: `ScheduleBegin`, the frames
/// (`MessageCan::cpmMode` 1, the time stamp being the moment of sending in seconds from 0.1
/// upward), `ScheduleEnd`, `ScheduleStart`. What they make a device do is its module's business; a
/// device that knows no scheduled sending ignores controls.
class MESSAGE_INTERFACE_EXPORT MessageCtrl : public Message
{
public:
    enum class ECtrl : std::uint32_t {
        ClearStatus = 0,   ///< reset the status counters
        ScheduleEnd = 1,   ///< follows the last frame of a schedule
        ScheduleBegin = 2, ///< stands ahead of the frames
        ScheduleStart = 3  ///< the last message of the batch
    };

    MessageCtrl();
    ~MessageCtrl() override;
    MessageCtrl(const MessageCtrl& other);
    MessageCtrl& operator=(const MessageCtrl& other);

    ECtrl id() const;
    void setId(ECtrl id);

private:
    ECtrl m_id = ECtrl::ClearStatus;
};

} // namespace zul
