#include "core/DirectoryListing.h"

#include <QDir>

#include <algorithm>

namespace zul {

QStringList fileNamesWithPoint(const QString& directory)
{
    // The slash keeps an empty name from meaning the working directory: files are opened by the
    // path "<directory>/<name>".
    QStringList names =
        QDir(directory + QLatin1Char('/'))
            .entryList({QStringLiteral("*.*")}, QDir::Files | QDir::Hidden, QDir::NoSort);
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace zul
