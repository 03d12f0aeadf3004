#pragma once

#include <cstdint>

namespace zul::test {

/// How often this thread has called operator new since the program began. The program links
/// AllocationCount.cpp, which replaces it.
std::uint64_t allocationCount();

} // namespace zul::test
