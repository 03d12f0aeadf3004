#include "tests/support/TestProcess.h"

#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TestHome.h"
#include "tests/support/WorkingDirectory.h"

#include <QCoreApplication>
#include <QDir>

#include <clocale>
#include <gtest/gtest.h>

namespace {

using namespace zul::test;

// These run in a program with each of the two mains.

TEST(TestProcess, UsersFilesAreAFreshDirectory)
{
    const QString appData = qEnvironmentVariable("appdata");
    EXPECT_TRUE(QDir(appData).exists());
    EXPECT_TRUE(appData.startsWith(QDir::tempPath())) << qPrintable(appData);
    EXPECT_FALSE(qEnvironmentVariableIsSet("ZUL_HOME"));
}

TEST(TestProcess, NumbersHaveAPoint)
{
    ASSERT_NE(QCoreApplication::instance(), nullptr);
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    EXPECT_EQ(qGlobalQHashSeed(), 0);
}

TEST(TestHome, EndsInASlashAndGoesWithItsObject)
{
    QString path;
    {
        const TestHome home;
        path = home.path();
        EXPECT_TRUE(path.endsWith(QLatin1Char('/')));
        home.write(QStringLiteral("a"), "content");
        EXPECT_EQ(home.read(QStringLiteral("a")), QByteArray("content"));
        EXPECT_TRUE(home.has(QStringLiteral("a")));
        EXPECT_EQ(home.file(QStringLiteral("a")), path + QStringLiteral("a"));
    }
    EXPECT_FALSE(QDir(path).exists());
}

TEST(TestHome, IsAnotherEachTime)
{
    EXPECT_NE(TestHome().path(), TestHome().path());
}

TEST(EnvironmentVariable, OldStateComesBack)
{
    qunsetenv("ZUL_TEST_VARIABLE");
    {
        const EnvironmentVariable outer("ZUL_TEST_VARIABLE", "outer");
        {
            const EnvironmentVariable inner("ZUL_TEST_VARIABLE", nullptr);
            EXPECT_FALSE(qEnvironmentVariableIsSet("ZUL_TEST_VARIABLE"));
        }
        EXPECT_EQ(qgetenv("ZUL_TEST_VARIABLE"), QByteArray("outer"));
    }
    EXPECT_FALSE(qEnvironmentVariableIsSet("ZUL_TEST_VARIABLE"));
}

TEST(WorkingDirectory, OldOneComesBack)
{
    const QString before = QDir::currentPath();
    const TestHome home;
    {
        const WorkingDirectory here(home.path());
        EXPECT_EQ(QDir::current(), QDir(QDir(home.path()).canonicalPath()));
    }
    EXPECT_EQ(QDir::currentPath(), before);
}

} // namespace
