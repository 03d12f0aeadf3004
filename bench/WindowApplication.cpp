#include "bench/WindowApplication.h"

#include <QFile>

#include <clocale>

namespace bench {

namespace {

int& withPlatform(int& argumentCount)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    return argumentCount;
}

} // namespace

WindowApplication::WindowApplication(int& argumentCount, char** arguments)
    : m_application(withPlatform(argumentCount), arguments)
{
    std::setlocale(LC_NUMERIC, "C"); // NOLINT(concurrency-mt-unsafe)
    // The device modules lie beside the program, one folder off from here.
    qputenv("ZUL_HOME",
            QFile::encodeName(QApplication::applicationDirPath() + QLatin1String("/..")));
}

} // namespace bench
