#include "core/Banner.h"

#include "core/Console.h"
#include "core/Version.h"

#include <filesystem>
#include <string>
#include <system_error>

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

constexpr std::size_t directoryBytes = 255;

} // namespace

void printBanner()
{
    print("%s\n\n%s", dashes, logo);
    print("                Version  : %s\n", versionText().c_str());
    print("                Compiled : %s\n", buildStamp().c_str());
    // Not through Qt: this is printed before the application object knows the locale.
    std::error_code ignored;
    const std::string directory = std::filesystem::current_path(ignored).string();
    print("                CWD      : %s\n", directory.substr(0, directoryBytes).c_str());
    print("%s\n", dashes);
}

} // namespace zul
