#pragma once

#include "message/MessageStatus.h"
#include "modules/network/NetworkLink.h"
#include "modules/support/ScheduleThread.h"

#include <memory>

namespace cannetwork {

/// What a status report tells.
struct Report
{
    LinkCounters counters;
    LinkCounters before; ///< at the report before this one
    BusTime elapsed = 0; ///< since then
    Protocol protocol = Protocol::Cannelloni;
    std::string peer;
    std::size_t waiting = 0; ///< messages in the queue towards the program
    std::size_t capacity = 0;
    ScheduleThread::Report schedule;
};

/// The status message of `report`. The row "CPM" holds nothing but the number of frames that the
/// schedule still has to send.
std::unique_ptr<zul::MessageStatus> makeStatusMessage(const Report& report);

} // namespace cannetwork
