#include "tests/unit/profile/AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {

thread_local std::uint64_t count = 0;

} // namespace

namespace zul::test {

std::uint64_t allocationCount()
{
    return count;
}

} // namespace zul::test

// Qt's containers take their memory from malloc. The sanitizers have one of their own.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) && defined(__GLIBC__)
// The C library's own function, which has no declaration.
extern "C" void* __libc_malloc(std::size_t size); // NOLINT(bugprone-reserved-identifier)

extern "C" void* malloc(std::size_t size)
{
    ++count;
    return __libc_malloc(size);
}
#endif

void* operator new(std::size_t size)
{
    ++count;
    void* memory = std::malloc(size > 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
