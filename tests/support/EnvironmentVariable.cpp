#include "tests/support/EnvironmentVariable.h"

namespace zul::test {

EnvironmentVariable::EnvironmentVariable(const char* name, const QByteArray& value)
    : EnvironmentVariable(name, nullptr)
{
    qputenv(m_name, value);
}

EnvironmentVariable::EnvironmentVariable(const char* name, std::nullptr_t)
    : m_name(name), m_wasSet(qEnvironmentVariableIsSet(name)), m_oldValue(qgetenv(name))
{
    qunsetenv(m_name);
}

EnvironmentVariable::~EnvironmentVariable()
{
    if (m_wasSet) {
        qputenv(m_name, m_oldValue);
    } else {
        qunsetenv(m_name);
    }
}

} // namespace zul::test
