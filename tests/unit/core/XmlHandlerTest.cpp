#include "core/XmlHandler.h"

#include "tests/support/TestHome.h"

#include <QLocale>

#include <array>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

using zul::XmlHandler;

const QString name = QStringLiteral("a");

// The attributes of an element `<e a="text"/>`.
class Attributes
{
public:
    explicit Attributes(const QString& text)
    {
        QDomElement element = XmlHandler::addElement(m_document, m_document, QStringLiteral("e"));
        element.setAttribute(name, text);
        map = element.attributes();
    }
    explicit Attributes(const char* latin1) : Attributes(QString::fromLatin1(latin1)) {}

private:
    QDomDocument m_document;

public:
    QDomNamedNodeMap map;
};

// What a writer made of a value.
template <typename Write>
QString written(const Write& write)
{
    QDomDocument document;
    QDomElement element = XmlHandler::addElement(document, document, QStringLiteral("e"));
    write(document, element);
    return element.attribute(name);
}

std::string printed(double value)
{
    std::array<char, 400> text{};
    std::snprintf(text.data(), text.size(), "%.12f", value);
    return text.data();
}

std::string writtenDouble(double value)
{
    return written([&](auto& document, auto& element) {
               XmlHandler::writeDouble(document, element, name, value);
           })
        .toLatin1()
        .constData();
}

TEST(XmlHandlerRead, AbsentAttributeGivesTheDefault)
{
    const QDomNamedNodeMap none;
    EXPECT_TRUE(XmlHandler::readBool(none, name, true));
    EXPECT_FALSE(XmlHandler::readBool(none, name, false));
    EXPECT_EQ(XmlHandler::readInt(none, name, 7), 7);
    EXPECT_DOUBLE_EQ(XmlHandler::readDouble(none, name, 1.5), 1.5);
    EXPECT_EQ(XmlHandler::readString(none, name, QStringLiteral("d")), QStringLiteral("d"));
    EXPECT_EQ(XmlHandler::readStdString(none, name, "d"), "d");
}

TEST(XmlHandlerRead, NameIsCaseSensitive)
{
    const Attributes attributes("5");
    EXPECT_EQ(XmlHandler::readInt(attributes.map, QStringLiteral("A"), 7), 7);
}

TEST(XmlHandlerRead, BoolIsTrueForTwoTextsAlone)
{
    for (const char* text : {"true", "1"}) {
        EXPECT_TRUE(XmlHandler::readBool(Attributes(text).map, name, false)) << text;
    }
    for (const char* text : {"", "0", "false", "True", "TRUE", "2", "yes", " 1", "1 ", "01"}) {
        EXPECT_FALSE(XmlHandler::readBool(Attributes(text).map, name, true)) << text;
    }
}

TEST(XmlHandlerRead, IntIsDecimal)
{
    EXPECT_EQ(XmlHandler::readInt(Attributes("12").map, name, 7), 12);
    EXPECT_EQ(XmlHandler::readInt(Attributes("-12").map, name, 7), -12);
    EXPECT_EQ(XmlHandler::readInt(Attributes("010").map, name, 7), 10);
    EXPECT_EQ(XmlHandler::readInt(Attributes("2147483647").map, name, 7), 2147483647);
}

TEST(XmlHandlerRead, IntThatIsNoNumberIsZeroNotTheDefault)
{
    for (const char* text : {"", "x", "12x", "0x10", "1.5", "2147483648", "1e3"}) {
        EXPECT_EQ(XmlHandler::readInt(Attributes(text).map, name, 7), 0) << text;
    }
}

TEST(XmlHandlerRead, Double)
{
    EXPECT_DOUBLE_EQ(XmlHandler::readDouble(Attributes("2.5").map, name, 7.0), 2.5);
    EXPECT_DOUBLE_EQ(XmlHandler::readDouble(Attributes("-1e-3").map, name, 7.0), -0.001);
}

TEST(XmlHandlerRead, DoubleThatIsNoNumberIsZeroNotTheDefault)
{
    for (const char* text : {"", "x", "2.5x", "2,5", "1.000,5", "0x10"}) {
        EXPECT_DOUBLE_EQ(XmlHandler::readDouble(Attributes(text).map, name, 7.0), 0.0) << text;
    }
}

TEST(XmlHandlerRead, StringBothWays)
{
    const QString text = QString::fromUtf8(" M\xc3\xbcller \xe2\x82\xac");
    EXPECT_EQ(XmlHandler::readString(Attributes(text).map, name, QString()), text);
    EXPECT_EQ(XmlHandler::readStdString(Attributes(text).map, name, "d"), " M\xfcller ?");
    EXPECT_EQ(XmlHandler::readStdString(Attributes("").map, name, "d"), "");
}

TEST(XmlHandlerWrite, String)
{
    const QString text = QString::fromUtf8("a<b&\"c\" \xc3\xbc");
    EXPECT_EQ(written([&](auto& document, auto& element) {
                  XmlHandler::writeString(document, element, name, text);
              }),
              text);
    EXPECT_EQ(written([&](auto& document, auto& element) {
                  XmlHandler::writeString(document, element, name, std::string("M\xfcller"));
              }),
              QString::fromUtf8("M\xc3\xbcller"));
}

TEST(XmlHandlerWrite, WritingAgainReplaces)
{
    EXPECT_EQ(written([&](auto& document, auto& element) {
                  XmlHandler::writeInt(document, element, name, 1);
                  XmlHandler::writeInt(document, element, name, 2);
              }),
              QStringLiteral("2"));
}

TEST(XmlHandlerWrite, CharactersThatXmlLacksAreDropped)
{
    QString text = QStringLiteral("a");
    for (const int code : {0x0, 0x1, 0x8, 0xB, 0xC, 0x1F, 0xD800, 0xFFFE, 0xFFFF}) {
        text += QChar(static_cast<ushort>(code));
        text += QLatin1Char('b');
    }
    text += QChar(0xDC00); // the second half of a pair alone
    EXPECT_EQ(written([&](auto& document, auto& element) {
                  XmlHandler::writeString(document, element, name, text);
              }),
              QStringLiteral("abbbbbbbbb"));
}

TEST(XmlHandlerWrite, CharactersOutsideTheBasicPlaneStay)
{
    const QString rocket = QString::fromUtf8("\xf0\x9f\x9a\x80\t\n\r");
    EXPECT_EQ(written([&](auto& document, auto& element) {
                  XmlHandler::writeString(document, element, name, rocket);
              }),
              rocket);
}

TEST(XmlHandlerWrite, IntIsDecimalText)
{
    for (const int value : {0, 1, -1, 2147483647, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(written([&](auto& document, auto& element) {
                      XmlHandler::writeInt(document, element, name, value);
                  }),
                  QString::number(value));
    }
}

TEST(XmlHandlerWrite, DoubleHasTwelvePlaces)
{
    EXPECT_EQ(writtenDouble(0.0), "0.000000000000");
    EXPECT_EQ(writtenDouble(1.5), "1.500000000000");
    EXPECT_EQ(writtenDouble(-1.0 / 3.0), "-0.333333333333");
    EXPECT_EQ(writtenDouble(1e-13), "0.000000000000");
    EXPECT_EQ(writtenDouble(123456789.0), "123456789.000000000000");
}

TEST(XmlHandlerWrite, DoubleIsThePrintfTextForEveryMagnitude)
{
    for (const double value : {-0.0, 1e22, 1e300, std::numeric_limits<double>::max(),
                               -std::numeric_limits<double>::max(), 5e-13, 2.5e-12}) {
        EXPECT_EQ(writtenDouble(value), printed(value));
    }
    std::mt19937_64 random(20200821);
    for (int i = 0; i < 20000; ++i) {
        const std::uint64_t bits = random();
        double value = 0.0;
        static_assert(sizeof value == sizeof bits);
        std::memcpy(&value, &bits, sizeof value);
        if (value - value == 0.0) { // finite
            ASSERT_EQ(writtenDouble(value), printed(value)) << "seed 20200821, step " << i;
        }
    }
}

TEST(XmlHandlerWrite, ValueThatIsNoNumberDoesNoHarm)
{
    EXPECT_EQ(writtenDouble(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(writtenDouble(std::numeric_limits<double>::quiet_NaN()), "nan");
}

// A decimal comma must neither come into the file nor be wanted from it.
TEST(XmlHandlerLocale, CommaLocaleChangesNothing)
{
    QLocale::setDefault(QLocale(QLocale::German));
    const std::string oldNumeric = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* german : {"de_DE.UTF-8", "de_DE.utf8", "de_DE"}) {
        if (std::setlocale(LC_NUMERIC, german) != nullptr) {
            break;
        }
    }
    EXPECT_EQ(writtenDouble(-1234567.25), "-1234567.250000000000");
    EXPECT_EQ(writtenDouble(1.5e300).find(','), std::string::npos);
    EXPECT_DOUBLE_EQ(XmlHandler::readDouble(Attributes("2.5").map, name, 7.0), 2.5);
    EXPECT_DOUBLE_EQ(XmlHandler::readDouble(Attributes("2,5").map, name, 7.0), 0.0);
    EXPECT_EQ(XmlHandler::readInt(Attributes("1.000").map, name, 7), 0);
    std::setlocale(LC_NUMERIC, oldNumeric.c_str());
    QLocale::setDefault(QLocale::c());
}

TEST(XmlHandler, AddElementAppends)
{
    QDomDocument document;
    QDomElement root = XmlHandler::addElement(document, document, QStringLiteral("root"));
    XmlHandler::addElement(document, root, QStringLiteral("one"));
    const QDomElement two = XmlHandler::addElement(document, root, QStringLiteral("two"));
    EXPECT_EQ(document.documentElement(), root);
    EXPECT_EQ(root.childNodes().size(), 2);
    EXPECT_EQ(root.lastChild(), two);
}

TEST(XmlHandler, DocumentIsSavedAndLoaded)
{
    const zul::test::TestHome home;
    QDomDocument document;
    QDomElement root = XmlHandler::addElement(document, document, QStringLiteral("ZUL"));
    QDomElement child = XmlHandler::addElement(document, root, QStringLiteral("Window"));
    XmlHandler::writeString(document, child, name, QString::fromUtf8("\xc3\xbc"));
    const QString path = home.file(QStringLiteral("p.zul"));
    ASSERT_TRUE(XmlHandler::saveDocument(document, path));
    EXPECT_EQ(home.read(QStringLiteral("p.zul")),
              QByteArray("<ZUL>\n    <Window a=\"\xc3\xbc\"/>\n</ZUL>\n"));

    QDomDocument loaded;
    ASSERT_TRUE(XmlHandler::loadDocument(path, loaded));
    EXPECT_EQ(loaded.toString(), document.toString());
}

TEST(XmlHandler, LoadAndSaveTellFailure)
{
    const zul::test::TestHome home;
    QDomDocument document;
    EXPECT_FALSE(XmlHandler::loadDocument(home.file(QStringLiteral("absent")), document));
    EXPECT_FALSE(XmlHandler::saveDocument(document, home.file(QStringLiteral("no/where"))));
}

} // namespace
