#include "core/ModuleRegistry.h"

#include "core/Console.h"
#include "core/DirectoryListing.h"
#include "core/GuardedCall.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int maxPathBytes = 511;

constexpr std::array moduleSuffixes{".so", ".dll", ".dylib"};

QByteArray localText(const QString& text)
{
    return text.toLocal8Bit();
}

template <typename Function>
Function resolveExport(const zul::DynamicLibrary& library, const char* name,
                       const QString& fileName)
{
    const auto function = library.resolve(name);
    if (function == nullptr) {
        zul::printError("Module <%s> Function <%s> not found !\n", localText(fileName).constData(),
                        name);
    }
    return reinterpret_cast<Function>(function);
}

} // namespace

ModuleRegistry& ModuleRegistry::instance()
{
    static auto* registry =
        new ModuleRegistry(searchDirectories(QCoreApplication::applicationDirPath()));
    return *registry;
}

QStringList ModuleRegistry::searchDirectories(const QString& applicationDirectory)
{
    zul::print("Search DIR <%s>\n", localText(applicationDirectory).constData());
    QStringList directories{QStringLiteral("."), applicationDirectory};
    if (qEnvironmentVariableIsSet("ZUL_HOME")) {
        const QString home = qEnvironmentVariable("ZUL_HOME");
        directories << home + QStringLiteral("/bin") << home;
    }
    for (QString& directory : directories) {
        directory = QString::fromLocal8Bit(localText(directory).left(maxPathBytes));
    }
    return directories;
}

bool ModuleRegistry::isModuleName(const QString& fileName)
{
    const int point = fileName.lastIndexOf(QLatin1Char('.'));
    if (point < 0 || !fileName.startsWith(QLatin1String("libCan"))) {
        return false;
    }
    const QStringRef suffix = fileName.midRef(point);
    return std::any_of(moduleSuffixes.begin(), moduleSuffixes.end(),
                       [&](const char* known) { return suffix == QLatin1String(known); });
}

ModuleRegistry::ModuleRegistry(const QStringList& directories)
{
    for (const QString& directory : directories) {
        scanDirectory(directory);
    }
    for (const auto& [name, module] : m_modules) {
        zul::print("--> Module <%s> Properties %d\n", name.c_str(),
                   static_cast<int>(module.info.properties.size()));
    }
}

const ModuleRegistry::Modules& ModuleRegistry::modules() const
{
    return m_modules;
}

const ModuleEntry* ModuleRegistry::find(const std::string& moduleName) const
{
    const auto found = m_modules.find(moduleName);
    return found != m_modules.end() ? &found->second : nullptr;
}

Device* ModuleRegistry::createDevice(const std::string& moduleName) const
{
    const ModuleEntry* module = find(moduleName);
    if (module == nullptr || moduleName.empty()) { // an empty name stands for no device
        return nullptr;
    }
    return zul::guardedCall("createDevice", static_cast<Device*>(nullptr), module->createDevice);
}

void ModuleRegistry::scanDirectory(const QString& directory)
{
    for (const QString& fileName : zul::fileNamesWithPoint(directory)) {
        if (isModuleName(fileName)) {
            loadFile(directory, fileName);
        }
    }
}

void ModuleRegistry::loadFile(const QString& directory, const QString& fileName)
{
    const QString path = directory + QLatin1Char('/') + fileName;
    zul::print("Open <%s> <%s>\n", localText(directory).constData(), localText(path).constData());
    const zul::DynamicLibrary library(path);
    if (!library.isLoaded()) {
        zul::printError("error opening %s\n", localText(path).constData());
        return;
    }
    const auto getInfo = resolveExport<ModuleEntry::GetInfo>(library, "getInfo", fileName);
    if (getInfo == nullptr) {
        return;
    }
    const auto info = zul::guardedCall("getInfo", std::optional<DeviceInfo>(),
                                       [&] { return std::make_optional(getInfo()); });
    if (!info) {
        return;
    }
    zul::print("Module %s %s found Properties %d handle %d\n", info->displayName.c_str(),
               info->moduleName.c_str(), static_cast<int>(info->properties.size()),
               library.handle());
    const auto createDevice =
        resolveExport<ModuleEntry::CreateDevice>(library, "createDevice", fileName);
    if (createDevice == nullptr) {
        return;
    }
    m_modules.insert_or_assign(info->moduleName,
                               ModuleEntry{library, getInfo, createDevice, *info});
}
