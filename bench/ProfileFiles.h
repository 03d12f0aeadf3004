#pragma once

#include <QString>
#include <QTemporaryDir>

namespace bench {

/// Profiles without a fault, in files that vanish with this object. Parameters come in frames of
/// four, two bytes each.
class ProfileFiles
{
public:
    /// Path of a profile of that many parameters in one of the two forms; `number` sets it apart
    /// from others: it has a name and identifiers of its own.
    QString text(int parameters, int number = 0);
    QString xml(int parameters, int number = 0);

private:
    QTemporaryDir m_directory;
};

} // namespace bench
