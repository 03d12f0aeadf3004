#include "core/Banner.h"

#include "core/Console.h"
#include "core/Version.h"

#include <QDir>

namespace zul {

namespace {

constexpr const char* dashes = "-------------------------------------------------";

constexpr const char* logo = "        _______  _   _  _\n"
                             "       |___   / | | | || |\n"
                             "          /  /  | | | || |\n"
                             "         /  /   | | | || |\n"
                             "        /  /__  | |_| || |____\n"
                             "       /______|  \\___/ |______|\n"
                             "   _   _   _   _____________   _   _   _\n"
                             "  | |_| |_| |_|   CAN bus   |_| |_| |_| |\n"
                             "\n";

constexpr int directoryBytes = 255;

} // namespace

void printBanner()
{
    print("%s\n\n%s", dashes, logo);
    print("                Version  : %s\n", versionText().c_str());
    print("                Compiled : %s\n", buildStamp().c_str());
    print("                CWD      : %s\n",
          QDir::currentPath().toLocal8Bit().left(directoryBytes).constData());
    print("%s\n", dashes);
}

} // namespace zul
