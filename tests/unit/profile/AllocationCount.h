#pragma once

#include <cstdint>

namespace zul::test {

/// How often this thread has taken memory since the program began, by operator new or malloc (by
/// operator new alone under a sanitizer). The program links
/// AllocationCount.cpp, which replaces it.
std::uint64_t allocationCount();

} // namespace zul::test
