#pragma once

#include "core/DynamicLibrary.h"
#include "message/Device.h"

#include <QStringList>

#include <map>
#include <optional>
#include <string>

/// One device module.
struct ModuleEntry
{
    using GetInfo = DeviceInfo (*)();
    using CreateDevice = Device* (*)();

    zul::DynamicLibrary handle;
    GetInfo getInfo = nullptr;
    CreateDevice createDevice = nullptr;
    DeviceInfo info; ///< what `getInfo` returned when the module was found
};

/// The device modules that were found, by module name. Every failure of the scan is one console
/// line, and the file is passed over.
class ModuleRegistry
{
public:
    using Modules = std::map<std::string, ModuleEntry>;

    /// The one of the process. Scans on first use, and never again; modules stay loaded.
    static ModuleRegistry& instance();

    /// Where modules are looked for: the working directory, `applicationDirectory`, and "bin" of
    /// and the directory in the environment variable "ZUL_HOME". Each is cut to 511 bytes.
    static QStringList searchDirectories(const QString& applicationDirectory);

    /// Whether a file of that name can be a module: it starts with "libCan", and what stands from
    /// its last point on is ".so", ".dll" or ".dylib".
    static bool isModuleName(const QString& fileName);

    /// Scans the directories in order; of two modules of one name the later wins.
    explicit ModuleRegistry(const QStringList& directories);

    const Modules& modules() const;
    /// The module of that name, or null.
    const ModuleEntry* find(const std::string& moduleName) const;
    /// A new device of that module, owned by the caller; null if the module is not there, makes
    /// none, or throws.
    Device* createDevice(const std::string& moduleName) const;

private:
    void scanDirectory(const QString& directory);
    void loadFile(const QString& directory, const QString& fileName);

    Modules m_modules;
};
