// Tells the thread sanitizer what QMutex does. Qt's libraries are not instrumented, so without this
// everything that a QMutex guards looks like a race. The linker finds these definitions before
// those of Qt, which they call.

#include <dlfcn.h>

extern "C" {
// The sanitizer's run-time library exports these two; GCC 12 has no header for them.
void __tsan_acquire(void* address); // NOLINT(bugprone-reserved-identifier)
void __tsan_release(void* address); // NOLINT(bugprone-reserved-identifier)

void annotatedLock(void* mutex) __asm__("_ZN6QMutex4lockEv");
void annotatedUnlock(void* mutex) __asm__("_ZN6QMutex6unlockEv");
}

namespace {

using Operation = void (*)(void*);

Operation operationOfQt(const char* name)
{
    return reinterpret_cast<Operation>(dlsym(RTLD_NEXT, name));
}

} // namespace

void annotatedLock(void* mutex)
{
    static const Operation lock = operationOfQt("_ZN6QMutex4lockEv");
    lock(mutex);
    __tsan_acquire(mutex);
}

void annotatedUnlock(void* mutex)
{
    static const Operation unlock = operationOfQt("_ZN6QMutex6unlockEv");
    __tsan_release(mutex);
    unlock(mutex);
}
