// Keeps the OpenGL driver loaded until the process ends. It is unloaded with the display otherwise,
// and what it leaves behind then counts as a leak of nobody, which no suppression can name.

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <link.h>
#include <string>
#include <vector>

namespace {

class PinnedDrivers : public testing::Environment
{
public:
    void TearDown() override
    {
        std::vector<std::string> drivers;
        dl_iterate_phdr(
            [](dl_phdr_info* info, std::size_t, void* found) {
                const std::string name = info->dlpi_name;
                if (name.find("_dri.so") != std::string::npos ||
                    name.find("libgallium") != std::string::npos) {
                    static_cast<std::vector<std::string>*>(found)->push_back(name);
                }
                return 0;
            },
            &drivers);
        for (const std::string& name : drivers) {
            dlopen(name.c_str(), RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
        }
    }
};

const auto* const environment = testing::AddGlobalTestEnvironment(new PinnedDrivers);

} // namespace
