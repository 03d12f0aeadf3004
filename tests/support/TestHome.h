#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace zul::test {

/// A fresh directory for the user's files, removed with all it holds when this object dies.
class TestHome
{
public:
    TestHome();

    /// The directory with a slash at its end, as `gui::Kernel::home` gives it.
    QString path() const;
    /// The path of a file in it.
    QString file(const QString& name) const;

    /// Writes a file in it; the test fails if that does not work.
    void write(const QString& name, const QByteArray& content) const;
    /// The content of a file in it; empty if there is none.
    QByteArray read(const QString& name) const;
    bool has(const QString& name) const;

private:
    QTemporaryDir m_directory;
};

} // namespace zul::test
