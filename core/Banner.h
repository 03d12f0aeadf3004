#pragma once

namespace zul {

/// Prints the head of the console output: logo, version, build stamp and working directory (its
/// first 255 bytes).
void printBanner();

} // namespace zul
