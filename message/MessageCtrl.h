#pragma once

#include "message/Message.h"

#include <cstdint>

namespace zul {

/// A command to a device.
///
/// A schedule is sent as one batch: `ScheduleBegin`, the frames (`MessageCan::cpmMode` 1, the time
/// stamp being the delay in seconds), `ScheduleEnd`, `ScheduleStart`. A device that knows no
/// scheduled sending ignores controls.
class MESSAGE_INTERFACE_EXPORT MessageCtrl : public Message
{
public:
    enum class ECtrl : std::uint32_t {
        ClearStatus = 0,   ///< reset the status counters
        ScheduleEnd = 1,   ///< the last frame of the schedule has been given
        ScheduleBegin = 2, ///< empties the schedule; its frames follow
        ScheduleStart = 3  ///< the delays count from now
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
