#include "app/Composition.h"
#include "core/Banner.h"
#include "core/Kernel.h"
#include "core/OptionParser.h"
#include "core/SettingsStore.h"
#include "core/Version.h"
#include "gui/desktop/DialogMain.h"
#include "gui/desktop/DialogSplash.h"

#include <QApplication>
#include <QHashFunctions>

#include <clocale>

namespace {

void parseOptions(int argumentCount, char** arguments)
{
    OptionParser& options = OptionParser::instance();
    options.addFlag("-h", "print this help");
    options.addValue("-f", "initialisation file", "zul.ini");
    const bool allKnown = options.parse(argumentCount, arguments);
    if (!allKnown || options.isSet("-h")) {
        options.usage(); // and start-up goes on
    }
}

void loadSettings()
{
    SettingsStore& settings = SettingsStore::instance();
    settings.setFile(gui::Kernel::instance().home() + QStringLiteral("zul.ini"));
    settings.load();
}

} // namespace

int main(int argumentCount, char** arguments)
{
    // The attributes of saved XML stand in hash order: an unchanged project is to give the same
    // bytes.
    qSetGlobalQHashSeed(0);
    zul::printBanner();
    parseOptions(argumentCount, arguments);

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argumentCount, arguments);
    // The application takes the user's locale, and printf would write a decimal comma with it.
    std::setlocale(LC_NUMERIC, "C"); // NOLINT(concurrency-mt-unsafe)

    gui::DialogSplash& splash = gui::DialogSplash::instance();
    splash.addMessage(QStringLiteral("Starting up ZUL..."));
    splash.addMessage(
        QStringLiteral("Version %1").arg(QString::fromLatin1(zul::versionText().c_str())));
    gui::Kernel& kernel = gui::Kernel::instance();
    kernel.setApplication(&application);
    loadSettings();
    splash.addMessage(QStringLiteral("Creating Dialogs ..."));
    splash.addMessage(QStringLiteral("Loading Profiles ..."));

    app::registerWindowMakers();
    gui::DialogMain mainWindow(app::objectTypeInfos());
    kernel.setMainWindow(&mainWindow);
    application.installEventFilter(&mainWindow);
    splash.finish();
    return QApplication::exec();
}
