#pragma once

#include <cstdint>

namespace zul {

/// The next number of the process-wide counter that gives profile records their identity. It starts
/// at 0; maps keyed by it iterate in order of creation. Main thread only.
std::uint32_t nextSerial();

/// The same for the records of LRU documents: a counter of its own.
std::uint32_t nextLru825Serial();

} // namespace zul
