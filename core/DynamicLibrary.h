#pragma once

#include <QString>

namespace zul {

/// A shared library that stays loaded until process exit.
class DynamicLibrary
{
public:
    using Function = void (*)();

    /// Loads the file; `isLoaded` tells whether that worked. A library with unresolved symbols does
    /// not load.
    explicit DynamicLibrary(const QString& path);

    bool isLoaded() const;

    /// A number of its own for each loaded library, from 1 upward; 0 if it is not loaded.
    int handle() const;

    /// The export of that undecorated name, or null. The caller knows its type.
    Function resolve(const char* name) const;

private:
    QString m_path;
    int m_handle = 0;
};

} // namespace zul
