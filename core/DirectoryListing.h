#pragma once

#include <QString>
#include <QStringList>

namespace zul {

/// The bare names of the files in a directory that have a point in them, in byte order; empty if
/// the directory cannot be read.
QStringList fileNamesWithPoint(const QString& directory);

} // namespace zul
