#include "core/XmlFile.h"

#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <gmock/gmock.h>

namespace {

using namespace zul;
using test::ConsoleCapture;
using testing::HasSubstr;

const QString fileName = QStringLiteral("file.xml");

class XmlFile : public testing::Test
{
protected:
    XmlLoad load(const QByteArray& content)
    {
        home.write(fileName, content);
        return loadAgain();
    }

    XmlLoad loadAgain()
    {
        // Something that a failing load must take away.
        document = QDomDocument();
        document.appendChild(document.createElement(QStringLiteral("before")));
        reason.clear();
        ConsoleCapture console;
        const XmlLoad result = loadXmlFile(home.file(fileName), document, &reason);
        output = console.out();
        if (result != XmlLoad::Loaded) {
            EXPECT_TRUE(document.documentElement().isNull());
        }
        return result;
    }

    QString rootTag() const { return document.documentElement().tagName(); }
    QString attribute(const char* name) const
    {
        return document.documentElement().attribute(QString::fromLatin1(name));
    }

    test::TestHome home;
    QDomDocument document;
    QString reason;
    std::string output;
};

QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

TEST_F(XmlFile, AbsentFileIsSilent)
{
    EXPECT_EQ(loadAgain(), XmlLoad::Absent);
    EXPECT_EQ(output, "");
}

TEST_F(XmlFile, DirectoryCountsAsAbsent)
{
    ASSERT_TRUE(QDir(home.path()).mkdir(fileName));
    EXPECT_EQ(loadAgain(), XmlLoad::Absent);
}

TEST_F(XmlFile, GoodFileIsSilent)
{
    EXPECT_EQ(load("<ZUL a=\"1\"><x/></ZUL>"), XmlLoad::Loaded);
    EXPECT_EQ(output, "");
    EXPECT_EQ(rootTag(), QStringLiteral("ZUL"));
}

TEST_F(XmlFile, DeclarationWithBlanksAroundItsEqualSigns)
{
    EXPECT_EQ(load("<?xml version = \"1.0\" encoding = \"UTF-8\"?>\n<ZUL v=\"\xc3\xa4\"/>"),
              XmlLoad::Loaded);
    EXPECT_EQ(attribute("v"), QString(QChar(0xE4)));
}

TEST_F(XmlFile, DeclaredEncodingIsObeyed)
{
    EXPECT_EQ(load("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><Z v=\"\xe4\"/>"),
              XmlLoad::Loaded);
    EXPECT_EQ(attribute("v"), QString(QChar(0xE4)));
}

TEST_F(XmlFile, Utf16WithByteOrderMark)
{
    const QString text = QString::fromUtf8("<Z v=\"\xe2\x82\xac\"/>");
    QByteArray bytes("\xff\xfe", 2);
    for (const QChar character : text) {
        bytes += static_cast<char>(character.cell());
        bytes += static_cast<char>(character.row());
    }
    EXPECT_EQ(load(bytes), XmlLoad::Loaded);
    EXPECT_EQ(attribute("v"), QString(QChar(0x20AC)));
}

TEST_F(XmlFile, WronglyEncodedLetterCostsThatLetterAlone)
{
    EXPECT_EQ(load("<Z v=\"M\xfcller\" w=\"1\"/>"), XmlLoad::Loaded);
    EXPECT_EQ(attribute("w"), QStringLiteral("1"));
}

TEST_F(XmlFile, UndeclaredNamespacePrefixIsNoError)
{
    EXPECT_EQ(load("<Z xsi:schemaLocation=\"x\"/>"), XmlLoad::Loaded);
}

class BrokenXml : public XmlFile, public testing::WithParamInterface<const char*>
{
};

TEST_P(BrokenXml, GivesAReasonNoDocumentAndNothingOnTheConsole)
{
    EXPECT_EQ(load(GetParam()), XmlLoad::Broken);
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_EQ(output, "");
}

INSTANTIATE_TEST_SUITE_P(, BrokenXml,
                         testing::Values("", "   \n", "no xml", "<", "<!", "<!--", "<?",
                                         "<![CDATA[", "<!DOCTYPE", "<a", "<a b=\"", "<a b='1",
                                         "<a><b></a>", "<a></b>", "<a/><b/>", "<a/>trailing",
                                         "<a b=\"<\"/>", "</a>", "<a><!-- never ends </a>",
                                         "<ZUL><Object type=\"1\"/><Obj", "{\"json\": true}"));

TEST_F(XmlFile, BinaryFilesAreBroken)
{
    QByteArray bytes;
    for (int i = 0; i < 4096; ++i) {
        bytes += static_cast<char>(i * 37 % 256);
    }
    EXPECT_EQ(load(bytes), XmlLoad::Broken);
    EXPECT_EQ(load(QByteArray(100, '\0')), XmlLoad::Broken);
    EXPECT_EQ(load("\x7f"
                   "ELF\x02\x01\x01"),
              XmlLoad::Broken);
}

TEST_F(XmlFile, EveryTruncationOfAGoodFileIsBrokenOrWhole)
{
    const QByteArray good =
        "<?xml version=\"1.0\"?><!-- c --><ZUL a=\"1\"><x><![CDATA[<]]></x></ZUL>";
    for (int length = 0; length < good.size(); ++length) {
        EXPECT_EQ(load(good.left(length)), XmlLoad::Broken) << length;
    }
    EXPECT_EQ(load(good), XmlLoad::Loaded);
}

TEST_F(XmlFile, DeepestNestingIsRead)
{
    EXPECT_EQ(load(nested(maxXmlDepth)), XmlLoad::Loaded);
    EXPECT_EQ(load(nested(maxXmlDepth + 1)), XmlLoad::Broken);
    EXPECT_THAT(reason.toStdString(), HasSubstr("nested deeper than 200 elements"));
}

TEST_F(XmlFile, DepthBombIsRefused)
{
    EXPECT_EQ(load(nested(1000000)), XmlLoad::Broken);
    EXPECT_EQ(load(QByteArray("<a>").repeated(1000000)), XmlLoad::Broken);
}

TEST_F(XmlFile, DepthBombBehindAWronglyEncodedLetterIsRefused)
{
    EXPECT_EQ(load("<a v=\"\xfc\">" + nested(100000) + "</a>"), XmlLoad::Broken);
    EXPECT_THAT(reason.toStdString(), HasSubstr("nested deeper"));
}

TEST_F(XmlFile, DepthBombWithMarkupThatHidesElementsIsRefused)
{
    const QByteArray disguise = "<a x='/>' y=\"</a>\"><!-- </a> --><![CDATA[</a>]]><?p </a>?>";
    EXPECT_EQ(load(disguise.repeated(1000) + QByteArray("</a>").repeated(1000)), XmlLoad::Broken);
    EXPECT_THAT(reason.toStdString(), HasSubstr("nested deeper"));
}

TEST_F(XmlFile, ManySiblingsAreNotDepth)
{
    QByteArray content = "<ZUL>";
    content +=
        QByteArray("<a/><b></b><c x='>'/><!-- <d> --><![CDATA[<e>]]><?p <f>?>").repeated(1000);
    EXPECT_EQ(load(content + "</ZUL>"), XmlLoad::Loaded);
}

TEST_F(XmlFile, EntityBombIsRefused)
{
    QByteArray content = "<!DOCTYPE Z [<!ENTITY e0 \"0123456789\">";
    for (int i = 1; i <= 20; ++i) {
        const QByteArray before = "&e" + QByteArray::number(i - 1) + ";";
        content += "<!ENTITY e" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
    }
    EXPECT_EQ(load(content + "]><Z v=\"&e20;\">&e20;</Z>"), XmlLoad::Broken);
    EXPECT_THAT(reason.toStdString(), HasSubstr("declares entities"));
}

TEST_F(XmlFile, ExternalEntityIsRefused)
{
    EXPECT_EQ(load("<!DOCTYPE Z [<!ENTITY e SYSTEM \"file:///etc/hostname\">]><Z>&e;</Z>"),
              XmlLoad::Broken);
}

TEST_F(XmlFile, DocumentTypeOfItsNameAloneIsRead)
{
    EXPECT_EQ(load("<!DOCTYPE ZUL>\n<ZUL a=\"1\"/>"), XmlLoad::Loaded);
    EXPECT_EQ(load("<!DOCTYPE ZUL SYSTEM \"a[b>c.dtd\">\n<ZUL a=\"1\"/>"), XmlLoad::Loaded);
    EXPECT_EQ(attribute("a"), QStringLiteral("1"));
}

TEST_F(XmlFile, FileAboveTheLimitIsRefused)
{
    QFile file(home.file(fileName));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<Z>");
    ASSERT_TRUE(file.resize(maxXmlBytes + 1)); // takes no room on the disk
    file.close();
    EXPECT_EQ(loadAgain(), XmlLoad::Broken);
    EXPECT_THAT(reason.toStdString(), HasSubstr("larger than 8388608 bytes"));
}

TEST_F(XmlFile, EndlessFileIsRefused)
{
    QDomDocument endless;
    EXPECT_EQ(loadXmlFile(QStringLiteral("/dev/zero"), endless, &reason), XmlLoad::Broken);
    EXPECT_THAT(reason.toStdString(), HasSubstr("larger than"));
}

TEST_F(XmlFile, SaveReplacesTheFile)
{
    home.write(fileName, "something longer than what comes, so that a rest would show");
    QDomDocument small;
    small.appendChild(small.createElement(QStringLiteral("Z")));
    EXPECT_TRUE(saveXmlFile(small, home.file(fileName)));
    EXPECT_EQ(home.read(fileName), QByteArray("<Z/>\n"));
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(XmlFile, SaveKeepsASymbolicLink)
{
    home.write(QStringLiteral("real.xml"), "old");
    ASSERT_TRUE(QFile::link(home.file(QStringLiteral("real.xml")), home.file(fileName)));
    QDomDocument small;
    small.appendChild(small.createElement(QStringLiteral("Z")));
    EXPECT_TRUE(saveXmlFile(small, home.file(fileName)));
    EXPECT_EQ(home.read(QStringLiteral("real.xml")), QByteArray("<Z/>\n"));
}

TEST_F(XmlFile, SaveFailsWhereNoFileCanBe)
{
    const QDomDocument empty;
    EXPECT_FALSE(saveXmlFile(empty, home.file(QStringLiteral("missing/file.xml"))));
    EXPECT_FALSE(saveXmlFile(empty, home.path()));
    EXPECT_FALSE(saveXmlFile(empty, QString()));
}

TEST_F(XmlFile, AttributesAreSavedInTheSameOrderEveryTime)
{
    const QByteArray content =
        "<Z one=\"1\" two=\"2\" three=\"3\" four=\"4\" five=\"5\" six=\"6\" seven=\"7\"/>";
    QByteArray first;
    for (int i = 0; i < 10; ++i) {
        ASSERT_EQ(load(content), XmlLoad::Loaded);
        ASSERT_TRUE(saveXmlFile(document, home.file(fileName)));
        first = i == 0 ? home.read(fileName) : first;
        EXPECT_EQ(home.read(fileName), first);
    }
}

QDomDocument documentOf(const char* root)
{
    QDomDocument made;
    made.appendChild(made.createElement(QLatin1String(root)));
    return made;
}

TEST_F(XmlFile, BrokenFileIsKeptWhenItIsWrittenOver)
{
    home.write(fileName + QStringLiteral(".bak"), "an older copy");
    EXPECT_EQ(load("broken"), XmlLoad::Broken);
    EXPECT_TRUE(saveXmlFile(documentOf("Z"), home.file(fileName)));
    EXPECT_EQ(home.read(fileName + QStringLiteral(".bak")), QByteArray("broken"));
    EXPECT_EQ(loadAgain(), XmlLoad::Loaded);
    EXPECT_TRUE(saveXmlFile(documentOf("Y"), home.file(fileName)));
    EXPECT_EQ(home.read(fileName + QStringLiteral(".bak")), QByteArray("broken"));
}

TEST_F(XmlFile, BrokenFileThatIsMendedByHandIsNotKept)
{
    EXPECT_EQ(load("broken"), XmlLoad::Broken);
    EXPECT_EQ(load("<Z/>"), XmlLoad::Loaded);
    EXPECT_TRUE(saveXmlFile(documentOf("Z"), home.file(fileName)));
    EXPECT_FALSE(home.has(fileName + QStringLiteral(".bak")));
}

TEST_F(XmlFile, BrokenFileBehindALinkIsKeptAndTheLinkStays)
{
    home.write(QStringLiteral("real.xml"), "broken");
    ASSERT_TRUE(
        QFile::link(home.file(QStringLiteral("real.xml")), home.file(QStringLiteral("link.xml"))));
    QDomDocument none;
    EXPECT_EQ(loadXmlFile(home.file(QStringLiteral("link.xml")), none), XmlLoad::Broken);
    EXPECT_TRUE(saveXmlFile(documentOf("Z"), home.file(QStringLiteral("link.xml"))));
    EXPECT_TRUE(QFileInfo(home.file(QStringLiteral("link.xml"))).isSymLink());
    EXPECT_TRUE(home.read(QStringLiteral("real.xml")).contains("<Z"));
    EXPECT_EQ(home.read(QStringLiteral("real.xml.bak")), QByteArray("broken"));
}

} // namespace
