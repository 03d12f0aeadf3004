#pragma once

#include <QDir>
#include <QString>

namespace zul::test {

/// Makes a directory the working directory while it lives.
class WorkingDirectory
{
public:
    explicit WorkingDirectory(const QString& directory) : m_old(QDir::currentPath())
    {
        QDir::setCurrent(directory);
    }
    ~WorkingDirectory() { QDir::setCurrent(m_old); }
    WorkingDirectory(const WorkingDirectory&) = delete;
    WorkingDirectory& operator=(const WorkingDirectory&) = delete;

private:
    QString m_old;
};

} // namespace zul::test
