#pragma once

#include <string>

namespace zul::test {

/// Collects what the process writes to standard output and standard error while it lives. Not
/// nested.
class ConsoleCapture
{
public:
    ConsoleCapture();
    ~ConsoleCapture();
    ConsoleCapture(const ConsoleCapture&) = delete;
    ConsoleCapture& operator=(const ConsoleCapture&) = delete;

    /// Ends the capture and gives what was written to standard output; later calls give the same.
    const std::string& out();
    /// The same for standard error.
    const std::string& err();

private:
    void finish();

    bool m_capturing = true;
    std::string m_out;
    std::string m_err;
};

} // namespace zul::test
