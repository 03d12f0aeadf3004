#include "tests/support/TestProcess.h"

#include <QHash>

#include <clocale>

namespace zul::test {

TestProcess::TestProcess()
{
    qputenv("appdata", m_appData.path().toLocal8Bit());
    qunsetenv("ZUL_HOME");
}

void TestProcess::makeReproducible()
{
    std::setlocale(LC_NUMERIC, "C");
    qSetGlobalQHashSeed(0);
}

} // namespace zul::test
