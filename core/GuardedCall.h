#pragma once

#include <exception>
#include <utility>

namespace zul {

/// Tells of an exception that came out of a device module, in one line on standard error; `what`
/// may be null. A failure that repeats the one before is not told again: the reader thread calls a
/// hundred times a second. Any thread.
void reportModuleFailure(const char* operation, const char* what);

/// Calls into a device module. An exception, which the contract forbids, ends here: it is reported,
/// and `fallback` is the result.
template <typename Result, typename Function>
Result guardedCall(const char* operation, Result fallback, Function&& function)
{
    try {
        return std::forward<Function>(function)();
    } catch (const std::exception& error) {
        reportModuleFailure(operation, error.what());
    } catch (...) {
        reportModuleFailure(operation, nullptr);
    }
    return fallback;
}

/// \overload for operations without a result
template <typename Function>
void guardedCall(const char* operation, Function&& function)
{
    guardedCall(operation, true, [&] {
        std::forward<Function>(function)();
        return true;
    });
}

} // namespace zul
