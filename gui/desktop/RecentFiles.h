#pragma once

#include <QString>
#include <QStringList>

namespace gui {

/// The project files opened last, newest first, kept in the settings "RecentFile0" to
/// "RecentFile5".
class RecentFiles
{
public:
    static constexpr int maxCount = 6;

    /// Reads the settings; empty ones are passed over.
    void load();
    /// Puts the path at the front, drops what is too much, and writes the settings.
    void add(const QString& path);

    const QStringList& paths() const { return m_paths; }

private:
    void store() const;

    QStringList m_paths;
};

} // namespace gui
