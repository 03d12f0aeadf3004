#pragma once

#include "message/MessageStatus.h"
#include "modules/virtual/BusPort.h"

#include <memory>
#include <string>

namespace canvirtual {

/// What a status report tells besides the numbers of the port.
struct ReportContext
{
    std::string busName;
    BusRates rates;
    ScenarioId scenario = ScenarioId::None;
};

/// The status message of `report`: the counters per second of its window, the first ones of
/// received and the second ones of sent traffic, and the rows of the status window.
///
/// The row "CPM" holds nothing but the number of frames that the schedule still has to send.
std::unique_ptr<zul::MessageStatus> makeStatusMessage(const PortReport& report,
                                                      const ReportContext& context);

} // namespace canvirtual
