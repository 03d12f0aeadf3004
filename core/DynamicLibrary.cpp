#include "core/DynamicLibrary.h"

#include <QLibrary>

namespace zul {

DynamicLibrary::DynamicLibrary(const QString& path) : m_path(path)
{
    static int loadedLibraries = 0;
    QLibrary library(path); // its destructor does not unload
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
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
