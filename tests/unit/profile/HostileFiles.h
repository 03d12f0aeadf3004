#pragma once

#include "tests/support/TestHome.h"

#include <QFile>

#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace zul::test {

/// Files that no reader of XML profiles may take, and that must not make it crash, hang or fill the
/// memory.
class HostileFiles
{
public:
    struct File
    {
        std::string name; ///< what is wrong with it
        QString path;
    };

    /// `root` is the element that the reader wants.
    explicit HostileFiles(const QByteArray& root)
    {
        const QByteArray open = '<' + root + '>';
        const QByteArray close = "</" + root + '>';
        add("empty", "");
        add("no XML", "<profile>\nname;1;2\n");
        add("binary", QByteArray("\x7f"
                                 "ELF\x02\x01\x01\0\0\0\xff\xfe\x80",
                                 13)
                          .repeated(1000));
        add("other root", "<Other/>");
        add("root with a prefix", "<x:" + root + "/>");
        add("root in another case", '<' + root.toUpper() + "/>");
        add("truncated", open + "<ParameterList><Sfid id=\"4\"");
        add("not closed", open + "<ParameterList/>");
        add("second root", open + close + open + close);
        add("text behind", open + close + "text");
        add("duplicate attribute", '<' + root + " name=\"a\" name=\"b\"/>");
        add("NUL", open + QByteArray(1, '\0') + close);
        add("entity bomb", entityBomb(open, close));
        add("default attribute bomb", "<!DOCTYPE a [<!ATTLIST Parameter nme CDATA \"" +
                                          QByteArray(1000, 'x') + "\">]>" + open + close);
        add("1,000,000 levels without an end", open + QByteArray("<a>").repeated(1000000));
        addSparse(open);
        addPipe();
        m_files.push_back({"absent", m_home.file(QStringLiteral("absent"))});
        m_files.push_back({"directory", m_home.path()});
    }

    const std::vector<File>& files() const { return m_files; }

private:
    QString nextPath()
    {
        return m_home.file(QString::number(m_files.size()) + QStringLiteral(".xml"));
    }

    void add(const std::string& name, const QByteArray& content)
    {
        const QString path = nextPath();
        m_home.write(QString::number(m_files.size()) + QStringLiteral(".xml"), content);
        m_files.push_back({name, path});
    }

    static QByteArray entityBomb(const QByteArray& open, const QByteArray& close)
    {
        QByteArray content = "<!DOCTYPE Z [<!ENTITY e0 \"0123456789\">";
        for (int i = 1; i <= 20; ++i) {
            const QByteArray before = "&e" + QByteArray::number(i - 1) + ";";
            content += "<!ENTITY e" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
        }
        return content + "]>" + open + "&e20;" + close;
    }

    void addSparse(const QByteArray& open)
    {
        add("100 MB without a tag", open);
        constexpr qint64 size = qint64{100} * 1024 * 1024;
        EXPECT_TRUE(QFile::resize(m_files.back().path, size));
    }

    void addPipe()
    {
        const QString path = nextPath();
        EXPECT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        m_files.push_back({"pipe", path});
    }

    TestHome m_home;
    std::vector<File> m_files;
};

} // namespace zul::test
