#pragma once

#include <QTemporaryDir>

namespace zul::test {

/// What every test program sets up before it makes its application object: the variable "appdata"
/// points at a fresh directory, so that no test touches the user's files.
class TestProcess
{
public:
    TestProcess();

    /// To be called once the application object is there, which has taken the user's locale: a
    /// decimal point stays a point, and QDom writes attributes in the same order in every run.
    static void makeReproducible();

private:
    QTemporaryDir m_appData;
};

} // namespace zul::test
