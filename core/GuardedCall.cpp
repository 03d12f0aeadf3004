#include "core/GuardedCall.h"

#include "core/Console.h"

#include <mutex>
#include <string>

namespace zul {

void reportModuleFailure(const char* operation, const char* what)
{
    static std::mutex mutex;
    static auto* last = new std::string; // reader threads may outlive the statics
    std::string text = std::string("Device module: ") + operation + " failed";
    if (what != nullptr) {
        text += std::string(": ") + what;
    }
    const std::lock_guard<std::mutex> lock(mutex);
    if (text != *last) {
        printError("%s\n", text.c_str());
        *last = text;
    }
}

} // namespace zul
