#include "tests/support/ConsoleCapture.h"

#include <gtest/gtest.h>

namespace zul::test {

ConsoleCapture::ConsoleCapture()
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
}

ConsoleCapture::~ConsoleCapture()
{
    finish();
}

const std::string& ConsoleCapture::out()
{
    finish();
    return m_out;
}

const std::string& ConsoleCapture::err()
{
    finish();
    return m_err;
}

void ConsoleCapture::finish()
{
    if (m_capturing) {
        m_capturing = false;
        m_out = testing::internal::GetCapturedStdout();
        m_err = testing::internal::GetCapturedStderr();
    }
}

} // namespace zul::test
