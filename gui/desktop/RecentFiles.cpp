#include "gui/desktop/RecentFiles.h"

#include "core/SettingsStore.h"

namespace gui {

namespace {

QString key(int index)
{
    return QString::asprintf("RecentFile%d", index);
}

} // namespace

void RecentFiles::load()
{
    m_paths.clear();
    for (int i = 0; i < maxCount; ++i) {
        const QString path = SettingsStore::instance().string(key(i), QString());
        if (!path.isEmpty()) {
            m_paths.append(path);
        }
    }
}

void RecentFiles::add(const QString& path)
{
    m_paths.removeAll(path);
    m_paths.prepend(path);
    while (m_paths.size() > maxCount) {
        m_paths.removeLast();
    }
    store();
}

void RecentFiles::store() const
{
    for (int i = 0; i < maxCount; ++i) {
        SettingsStore::instance().setString(key(i), i < m_paths.size() ? m_paths.at(i) : QString());
    }
}

} // namespace gui
