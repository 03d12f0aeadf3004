#pragma once

namespace bench {

/// Runs the Transmit window in the event loop, for so many seconds for each set of lines, and
/// prints the periods in which their frames came out. Needs a QApplication.
void measureTransmitPeriods(double seconds);

} // namespace bench
