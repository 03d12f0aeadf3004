#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace zul::test {

/// Compares what was written with a file of `tests/data/xml-profile`. If it differs, what was
/// written is put into the working directory under that name and ".actual". The file itself is
/// changed by hand alone.
inline void expectGolden(const QString& name, const QByteArray& actual)
{
    QFile golden(QStringLiteral(ZUL_TEST_DATA "/xml-profile/") + name);
    ASSERT_TRUE(golden.open(QIODevice::ReadOnly)) << golden.fileName().toStdString();
    const QByteArray expected = golden.readAll();
    EXPECT_EQ(expected.toStdString(), actual.toStdString());
    if (expected != actual) {
        QFile file(QDir::current().filePath(name + QStringLiteral(".actual")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(actual);
        ADD_FAILURE() << "see " << file.fileName().toStdString();
    }
}

} // namespace zul::test
