#include "bench/WindowMain.h"

#include <QApplication>

#include <clocale>
#include <utility>

namespace bench {

int runWindowBenchmarks(int argumentCount, char** arguments, std::vector<Comparison> comparisons)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {
        // The offscreen platform complains at each window that is shown.
    });
    const QApplication application(argumentCount, arguments);
    std::setlocale(LC_NUMERIC, "C"); // NOLINT(concurrency-mt-unsafe)
    return runBenchmarks(argumentCount, arguments, std::move(comparisons));
}

} // namespace bench
