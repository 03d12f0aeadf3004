#include "core/DirectoryListing.h"

#include <QDir>
#include <algorithm>

namespace zul {

QStringList fileNamesWithPoint(const QString& directory)
{
    QStringList names = QDir(directory).entryList({QStringLiteral("*.*")},
                                                  QDir::Files | QDir::Hidden, QDir::NoSort);
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace zul
