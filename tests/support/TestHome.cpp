#include "tests/support/TestHome.h"

#include <QFile>

#include <gtest/gtest.h>

namespace zul::test {

TestHome::TestHome()
{
    EXPECT_TRUE(m_directory.isValid());
}

QString TestHome::path() const
{
    return m_directory.path() + QLatin1Char('/');
}

QString TestHome::file(const QString& name) const
{
    return path() + name;
}

void TestHome::write(const QString& name, const QByteArray& content) const
{
    QFile target(file(name));
    ASSERT_TRUE(target.open(QIODevice::WriteOnly | QIODevice::Truncate)) << qPrintable(name);
    ASSERT_EQ(target.write(content), content.size());
}

QByteArray TestHome::read(const QString& name) const
{
    QFile source(file(name));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

bool TestHome::has(const QString& name) const
{
    return QFile::exists(file(name));
}

} // namespace zul::test
