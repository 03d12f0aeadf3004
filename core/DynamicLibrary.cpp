#include "core/DynamicLibrary.h"

#include <QFileInfo>
#include <QLibrary>

namespace zul {

// An absolute path is loaded as it stands; a bare name would get other suffixes tried first.
DynamicLibrary::DynamicLibrary(const QString& path) : m_path(QFileInfo(path).absoluteFilePath())
{
    static int loadedLibraries = 0;
    QLibrary library(m_path); // its destructor does not unload
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (library.load()) {
        m_handle = ++loadedLibraries;
    }
}

bool DynamicLibrary::isLoaded() const
{
    return m_handle != 0;
}

int DynamicLibrary::handle() const
{
    return m_handle;
}

DynamicLibrary::Function DynamicLibrary::resolve(const char* name) const
{
    return isLoaded() ? QLibrary::resolve(m_path, name) : nullptr;
}

} // namespace zul
