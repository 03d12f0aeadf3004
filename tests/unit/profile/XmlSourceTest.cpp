#include "profile/XmlSource.h"

#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"
#include "tests/unit/profile/HostileFiles.h"

#include <QDomDocument>

#include <gmock/gmock.h>
#include <random>
#include <vector>

namespace {

using namespace zul;
using testing::HasSubstr;

const QString fileName = QStringLiteral("file.xml");

// An element and its line, children behind their parent.
using Lines = std::vector<std::pair<std::string, int>>;

void collect(XmlSource& source, Lines& lines)
{
    while (source.nextChild()) {
        lines.emplace_back(xmlText(source.attributes(), "n").toStdString(), source.line());
        collect(source, lines);
    }
}

void collect(const QDomNode& parent, Lines& lines)
{
    for (QDomElement child = parent.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        lines.emplace_back(child.attribute(QStringLiteral("n")).toStdString(), child.lineNumber());
        collect(child, lines);
    }
}

class XmlSourceFile : public testing::Test
{
protected:
    bool open(const QByteArray& content)
    {
        home.write(fileName, content);
        const test::ConsoleCapture quiet;
        return source.emplace().open(home.file(fileName));
    }

    Lines linesOfSource(const QByteArray& content)
    {
        Lines lines;
        EXPECT_TRUE(open(content)) << content.toStdString();
        collect(*source, lines);
        return lines;
    }

    static Lines linesOfDom(const QByteArray& content)
    {
        QDomDocument document;
        EXPECT_TRUE(document.setContent(content));
        Lines lines;
        collect(document.documentElement(), lines);
        return lines;
    }

    // The attribute "a" of the root.
    QString attributeOf(const QByteArray& content)
    {
        EXPECT_TRUE(open(content));
        return xmlText(source->attributes(), "a");
    }

    test::TestHome home;
    std::optional<XmlSource> source;
};

QByteArray utf16(const QString& text, bool bigEndian)
{
    QByteArray bytes = bigEndian ? QByteArray("\xfe\xff", 2) : QByteArray("\xff\xfe", 2);
    for (const QChar character : text) {
        const char low = static_cast<char>(character.cell());
        const char high = static_cast<char>(character.row());
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

// Random documents with line ends at every place where XML allows them.
class RandomDocument
{
public:
    RandomDocument(unsigned seed, QByteArray lineEnd, int maxChildren)
        : m_random(seed), m_lineEnd(std::move(lineEnd)), m_maxChildren(maxChildren)
    {
    }

    QByteArray make()
    {
        QByteArray text = "<?xml version = \"1.0\" encoding = \"UTF-8\"?>" + blanks(false);
        text += "<!-- x" + blanks(false) + "-->" + blanks(false);
        return text + element(0) + blanks(false);
    }

private:
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

    QByteArray blanks(bool needed)
    {
        QByteArray text = needed ? " " : "";
        for (int i = below(4); i > 0; --i) {
            text += below(2) != 0 ? m_lineEnd : QByteArray(" ");
        }
        return text;
    }

    QByteArray betweenElements()
    {
        switch (below(6)) {
        case 0:
            return "<!-- c" + blanks(false) + "-->";
        case 1:
            return "text" + blanks(false) + "&lt;";
        case 2:
            return "<![CDATA[x" + blanks(false) + "<b>]]>";
        case 3:
            return "<?pi d" + blanks(false) + "?>";
        default:
            return blanks(false);
        }
    }

    QByteArray element(int depth)
    {
        QByteArray text = "<e" + blanks(true) + "n" + blanks(false) + "=" + blanks(false) + "\"" +
                          QByteArray::number(++m_count) + "\"";
        for (int i = below(3); i > 0; --i) {
            text += blanks(true) + "a" + QByteArray::number(i) + "='v" + blanks(false) + "&amp;'";
        }
        text += blanks(false);
        constexpr int maxDepth = 4;
        if (depth == maxDepth || (depth > 0 && below(3) == 0)) {
            return text + "/>";
        }
        text += ">";
        for (int i = 1 + below(m_maxChildren); i > 0; --i) {
            text += betweenElements() + element(depth + 1) + blanks(false);
        }
        return text + "</e" + blanks(false) + ">";
    }

    std::mt19937 m_random;
    QByteArray m_lineEnd;
    int m_maxChildren;
    int m_count = 0;
};

TEST_F(XmlSourceFile, LineIsThatInWhichTheStartTagEnds)
{
    const Lines expected{{"1", 2}, {"2", 5}, {"3", 5}, {"4", 7}};
    const QByteArray content =
        "<r>\n<e n='1'/>\n<e\n n='2'\n><e n='3'/></e>\n<!--\n--><e n='4'/></r>";
    EXPECT_EQ(linesOfSource(content), expected);
    EXPECT_EQ(linesOfDom(content), expected);
    EXPECT_EQ(linesOfSource(QByteArray(content).replace("\n", "\r\n")), expected);
    EXPECT_EQ(linesOfSource(QByteArray(content).replace("\n", "\r")), expected);
}

TEST_F(XmlSourceFile, LineIsThatOfTheDomNode)
{
    for (unsigned seed = 0; seed < 600; ++seed) {
        const QByteArray lineEnd = std::vector<QByteArray>{"\n", "\r\n", "\r"}.at(seed % 3);
        const QByteArray content = RandomDocument(seed, lineEnd, 3).make();
        ASSERT_EQ(linesOfSource(content), linesOfDom(content)) << "seed " << seed;
    }
}

TEST_F(XmlSourceFile, LineIsThatOfTheDomNodeBeyondTheBlocksOfReading)
{
    for (const QByteArray& lineEnd : {QByteArray("\n"), QByteArray("\r\n"), QByteArray("\r")}) {
        const QByteArray content = RandomDocument(20200821, lineEnd, 24).make();
        ASSERT_GT(content.size(), 300000);
        EXPECT_TRUE(linesOfSource(content) == linesOfDom(content));
    }
}

TEST_F(XmlSourceFile, LetterOfTwoHalvesAcrossTheBorderOfABlock)
{
    constexpr int block = 64 * 1024;
    const QString letter = QStringLiteral("\U0001F6E9");
    for (int blanks = block / 2 - 12; blanks <= block / 2; ++blanks) {
        const QString text = QStringLiteral("<r a='") + QString(blanks, QLatin1Char('x')) + letter +
                             QStringLiteral("'/>");
        QByteArray bytes("\xff\xfe");
        bytes.append(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
        home.write(fileName, bytes);
        zul::XmlSource read;
        ASSERT_TRUE(read.open(home.file(fileName)));
        EXPECT_TRUE(zul::xmlText(read.attributes(), "a").endsWith(letter)) << blanks;
    }
}

TEST_F(XmlSourceFile, TagOfManyAttributesIsRefused)
{
    QByteArray tag = "<r";
    for (int i = 0; i < 200'000; ++i) {
        tag += " a" + QByteArray::number(i) + "=''";
    }
    home.write(fileName, tag + "/>");
    EXPECT_FALSE(zul::xmlRootName(home.file(fileName)));
}

TEST_F(XmlSourceFile, ManyDeclarationsAreRefused)
{
    QByteArray document = "<!DOCTYPE r [";
    for (int i = 0; i < 100'000; ++i) {
        document += "<!ATTLIST r a" + QByteArray::number(i) + " CDATA 'x'>";
    }
    home.write(fileName, document + "]><r/>");
    EXPECT_FALSE(zul::xmlRootName(home.file(fileName)));
}

TEST_F(XmlSourceFile, DeclarationWithBlanksAroundItsEqualSigns)
{
    EXPECT_EQ(attributeOf("<?xml version = \"1.0\" encoding = \"UTF-8\"?>\n<r a=\"\xc3\xa4\"/>"),
              QString(QChar(0xE4)));
}

TEST_F(XmlSourceFile, Encodings)
{
    const QString euro = QString(QChar(0x20AC));
    EXPECT_EQ(attributeOf("<r a='\xe2\x82\xac'/>"), euro);
    EXPECT_EQ(attributeOf("\xef\xbb\xbf<r a='\xe2\x82\xac'/>"), euro);
    EXPECT_EQ(attributeOf("<?xml version='1.0' encoding='windows-1252'?><r a='\x80'/>"), euro);
    EXPECT_EQ(attributeOf("<?xml version='1.0' encoding='ISO-8859-1'?><r a='\xe4'/>"),
              QString(QChar(0xE4)));
    const QString text = QStringLiteral("<r a='") + euro + QStringLiteral("'/>");
    const QString head = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n");
    for (const bool bigEndian : {false, true}) {
        EXPECT_EQ(attributeOf(utf16(text, bigEndian)), euro);
        EXPECT_EQ(attributeOf(utf16(head + text, bigEndian)), euro);
    }
}

// An editor that knows nothing of XML: what was declared is not what is there.
TEST_F(XmlSourceFile, ByteOrderMarkCountsMoreThanTheDeclaration)
{
    const QString text = QStringLiteral("<?xml version='1.0' encoding='ISO-8859-1'?><r a='") +
                         QChar(0x20AC) + QStringLiteral("'/>");
    EXPECT_EQ(attributeOf(utf16(text, false)), QString(QChar(0x20AC)));
    EXPECT_EQ(attributeOf("\xef\xbb\xbf" + text.toUtf8()), QString(QChar(0x20AC)));
}

TEST_F(XmlSourceFile, WronglyEncodedLetterCostsThatLetterAlone)
{
    EXPECT_EQ(attributeOf("<r a='M\xfcller'/>"),
              QStringLiteral("M") + QChar(0xFFFD) + QStringLiteral("ller"));
    EXPECT_EQ(attributeOf("<?xml version='1.0' encoding='UTF-8'?><r b='\xfc' a='1'/>"),
              QStringLiteral("1"));
}

TEST_F(XmlSourceFile, UnknownEncodingIsUtf8)
{
    EXPECT_EQ(attributeOf("<?xml version='1.0' encoding='FOO-9'?><r a='\xc3\xa4'/>"),
              QString(QChar(0xE4)));
}

TEST_F(XmlSourceFile, LetterAcrossTheBlocksOfReadingStaysWhole)
{
    for (int length = 64 * 1024 - 20; length < 64 * 1024; ++length) {
        const QByteArray padding(length, 'x');
        const QString expected = QString::fromLatin1(padding) + QChar(0x20AC);
        ASSERT_EQ(attributeOf("<r a='" + padding + "\xe2\x82\xac'/>"), expected) << length;
    }
}

TEST_F(XmlSourceFile, ElementsWithAPrefixHaveOtherNames)
{
    ASSERT_TRUE(open("<x:r><x:e/><e/></x:r>"));
    EXPECT_EQ(source->root(), QStringLiteral("x:r"));
    ASSERT_TRUE(source->nextChild());
    EXPECT_FALSE(source->isAt("e"));
    source->skip();
    ASSERT_TRUE(source->nextChild());
    EXPECT_TRUE(source->isAt("e"));
    source->skip();
    EXPECT_FALSE(source->nextChild());
}

TEST_F(XmlSourceFile, DocumentTypeWithoutDeclarationsIsRead)
{
    EXPECT_TRUE(open("<!DOCTYPE r><r/>"));
    EXPECT_TRUE(open("<!DOCTYPE r SYSTEM \"r.dtd\"><r/>"));
}

TEST_F(XmlSourceFile, DocumentTypeWithDeclarationsIsRefused)
{
    EXPECT_FALSE(open("<!DOCTYPE r [<!ENTITY e \"1\">]><r/>"));
    EXPECT_FALSE(open("<!DOCTYPE r [<!ATTLIST r a CDATA 'default'>]><r/>"));
    EXPECT_FALSE(open("<!DOCTYPE r [<!ENTITY % e '<!-- -->'> %e;]><r/>"));
}

TEST_F(XmlSourceFile, SkippedMillionLevels)
{
    constexpr int depth = 1000000;
    ASSERT_TRUE(open("<r>" + QByteArray("<a>").repeated(depth) +
                     QByteArray("</a>").repeated(depth) + "<b/></r>"));
    ASSERT_TRUE(source->nextChild());
    source->skip();
    ASSERT_TRUE(source->nextChild());
    EXPECT_TRUE(source->isAt("b"));
}

TEST_F(XmlSourceFile, RunsAreBounded)
{
    constexpr int tooMuch = static_cast<int>(XmlSource::maxRun) + 1024 * 1024;
    const std::vector<std::pair<QByteArray, QByteArray>> runs{
        {"<r>", "</r>"}, {"<r><!--", "--></r>"}, {"<r><![CDATA[", "]]></r>"}};
    for (const auto& [begin, end] : runs) {
        // Less-than signs, where they are allowed, are no tags.
        const QByteArray filling = begin == "<r>" ? " " : "<";
        home.write(fileName, begin + filling.repeated(tooMuch) + end);
        test::ConsoleCapture console;
        EXPECT_FALSE(XmlSource().open(home.file(fileName))) << begin.toStdString();
        EXPECT_THAT(console.out(), HasSubstr("no tag in 67108864 bytes, not read\n"));
    }
}

TEST_F(XmlSourceFile, LargeFilesOfShortRunsAreRead)
{
    const QByteArray element = "<e n='" + QByteArray(1000, 'x') + "'/>\n";
    constexpr int count = 80 * 1000;
    ASSERT_GT(qint64{element.size()} * count, XmlSource::maxRun);
    EXPECT_TRUE(open("<r>" + element.repeated(count) + "</r>"));
}

TEST(XmlRootName, OfAnyXmlFile)
{
    const test::TestHome home;
    home.write(fileName, "<!-- c --><Root/>");
    EXPECT_EQ(xmlRootName(home.file(fileName)), QStringLiteral("Root"));
}

TEST(XmlRootName, OfNothingElse)
{
    const test::HostileFiles hostile("Root");
    for (const auto& [name, path] : hostile.files()) {
        const test::ConsoleCapture quiet;
        const std::optional<QString> root = xmlRootName(path);
        EXPECT_NE(root, QStringLiteral("Root")) << name;
    }
}

} // namespace
