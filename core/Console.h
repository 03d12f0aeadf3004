#pragma once

namespace zul {

#if defined(__GNUC__)
#define ZUL_PRINTF(formatIndex, firstArgument)                                                     \
    __attribute__((format(printf, formatIndex, firstArgument)))
#else
#define ZUL_PRINTF(formatIndex, firstArgument)
#endif

/// Writes a diagnostic to standard output and flushes it. There are no log levels and no log file.
void print(const char* format, ...) ZUL_PRINTF(1, 2);

/// The same on standard error; for failures of device modules.
void printError(const char* format, ...) ZUL_PRINTF(1, 2);

} // namespace zul
