#include "tests/support/TestProcess.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

// Runs the tests of what needs no display.
int main(int argc, char** argv)
{
    const zul::test::TestProcess process;
    const QCoreApplication application(argc, argv);
    zul::test::TestProcess::makeReproducible();
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
