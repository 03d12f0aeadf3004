#pragma once

#include "core/Console.h"

#include <exception>
#include <utility>

namespace zul {

/// Calls into a device module. An exception, which the contract forbids, ends here: it gives one
/// line on standard error with the operation's name, and `fallback` as the result.
template <typename Result, typename Function>
Result guardedCall(const char* operation, Result fallback, Function&& function)
{
    try {
        return std::forward<Function>(function)();
    } catch (const std::exception& error) {
        printError("Device module: %s failed: %s\n", operation, error.what());
    } catch (...) {
        printError("Device module: %s failed\n", operation);
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
