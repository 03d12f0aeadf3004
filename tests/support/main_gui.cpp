#include "tests/support/TestProcess.h"

#include <QApplication>

#include <gmock/gmock.h>

// Runs the tests of windows, on the offscreen platform unless the caller chose another.
int main(int argc, char** argv)
{
    const zul::test::TestProcess process;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    zul::test::TestProcess::makeReproducible();
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
