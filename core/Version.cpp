#include "core/Version.h"

namespace zul {

std::string productName()
{
    return version.product;
}

std::string versionNumbers()
{
    return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.patch);
}

std::string versionText()
{
    return productName() + " " + versionNumbers();
}

} // namespace zul
