#pragma once

#include <QByteArray>

#include <cstddef>

namespace zul::test {

/// Gives an environment variable a value, or takes it away, while it lives; the old state comes
/// back afterwards.
class EnvironmentVariable
{
public:
    /// Sets the variable to `value`; `std::nullptr_t` for none.
    EnvironmentVariable(const char* name, const QByteArray& value);
    EnvironmentVariable(const char* name, std::nullptr_t);
    ~EnvironmentVariable();
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    const char* m_name;
    bool m_wasSet;
    QByteArray m_oldValue;
};

} // namespace zul::test
