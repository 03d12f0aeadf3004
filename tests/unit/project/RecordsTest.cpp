#include "project/ObjectDial.h"
#include "project/ObjectFunctionGen.h"
#include "project/ObjectGraph.h"
#include "project/ObjectNodeService.h"
#include "project/ObjectReceive.h"
#include "project/ObjectReplay.h"
#include "project/ObjectStatistic.h"
#include "project/ObjectTrace.h"
#include "project/ObjectTransmit.h"
#include "project/Project.h"
#include "tests/support/ProbeObjects.h"
#include "tests/support/TestHome.h"

#include <QFile>

#include <functional>
#include <gtest/gtest.h>
#include <map>

// One contract for the records of all windows: the attributes of a new object, every attribute off
// its default written, read and written again, and what a missing attribute reads as.

namespace {

struct Attribute
{
    const char* element; // path below the object's element
    const char* name;
    const char* fresh;   // in a new object
    const char* missing; // read from a file without it
};

struct RecordCase
{
    ObjectType type;
    ObjectTypeInfo (*info)();
    std::vector<Attribute> attributes;
    bool hasFilter;
};

constexpr const char* all = "All Interfaces";

const std::vector<RecordCase>& cases()
{
    static const std::vector<RecordCase> table{
        {ObjectType::Receive,
         &ObjectReceive::typeInfo,
         {{"Mode", "inputOn", "1", "0"},
          {"Mode", "displayMode", "0", "0"},
          {"Mode", "numberType", "0", "0"},
          {"Mode", "inputInterface", all, all}},
         true},
        {ObjectType::Transmit,
         &ObjectTransmit::typeInfo,
         {{"Mode", "outputOn", "1", "0"},
          {"Mode", "autoTx", "0", "0"},
          {"Mode", "displayMode", "0", "0"},
          {"Mode", "numberType", "0", "0"},
          {"Mode", "outputInterface", all, all}},
         false},
        {ObjectType::Trace,
         &ObjectTrace::typeInfo,
         {{"Mode", "inputOn", "1", "0"},
          {"Mode", "displayMode", "0", "0"},
          {"Mode", "numberType", "0", "0"},
          {"Mode", "traceFormat", "0", "0"},
          {"Mode", "inputInterface", all, all},
          {"Mode", "outputInterface", all, all}},
         true},
        {ObjectType::Replay,
         &ObjectReplay::typeInfo,
         {{"Mode", "outputOn", "1", "0"},
          {"Mode", "displayMode", "0", "0"},
          {"Mode", "numberType", "0", "0"},
          {"Mode", "traceFormat", "0", "0"},
          {"Mode", "inputInterface", all, all},
          {"Mode", "outputInterface", all, all},
          {"Mode", "autoRepeat", "0", "0"}},
         true},
        {ObjectType::Graph,
         &ObjectGraph::typeInfo,
         {{"Mode", "inputOn", "1", "0"},
          {"Mode", "inputInterface", all, all},
          {"Graph", "xRange", "60.000000000000", "0.000000000000"},
          {"Graph", "splitMode", "1", "0"},
          {"Graph", "autoMode", "1", "0"},
          {"Graph", "cursorMode", "1", "0"},
          {"Graph", "backgroundColor", "#000000", ""},
          {"Graph", "gridOn", "1", "0"},
          {"Graph", "gridColor", "#ff6666", ""},
          {"Graph", "labelColor", "#000000", ""},
          {"Graph", "labelBackColor", "#bbbbbb", ""},
          {"Graph", "cursorOn", "1", "0"},
          {"Graph", "legendOn", "1", "0"},
          {"Graph", "autoScale", "1", "0"},
          {"Graph", "yMin", "-100.000000000000", "0.000000000000"},
          {"Graph", "yMax", "100.000000000000", "0.000000000000"},
          {"Graph/Message", "active", "1", "0"},
          {"Graph/Message", "id", "0", "0"},
          {"Graph/Message", "nme", "NewPara", ""},
          {"Graph/Message", "pun", "Unit", ""},
          {"Graph/Message", "color", "#ff8800", ""},
          {"Graph/Message", "type", "2", "0"},
          {"Graph/Message", "dtc", "0", "0"},
          {"Graph/Message", "sppByte", "0", "0"},
          {"Graph/Message", "sppBit", "0", "0"},
          {"Graph/Message", "eppByte", "0", "0"},
          {"Graph/Message", "eppBit", "0", "0"},
          {"Graph/Message", "min", "0.000000000000", "0.000000000000"},
          {"Graph/Message", "max", "1.000000000000", "0.000000000000"},
          {"Graph/Message", "lsb", "0.000000000000", "0.000000000000"},
          {"Graph/Message", "endian", "1", "0"},
          {"Graph/Message", "showSamples", "0", "0"},
          {"Graph/Message", "autoScale", "0", "0"},
          {"Graph/Message", "yMin", "0.000000000000", "0.000000000000"},
          {"Graph/Message", "yMax", "100.000000000000", "0.000000000000"},
          {"Graph/Message", "scaleOffset", "0.000000000000", "0.000000000000"},
          {"Graph/Message", "scaleFactor", "1.000000000000", "1.000000000000"}},
         true},
        {ObjectType::Dial,
         &ObjectDial::typeInfo,
         {{"Mode", "inputOn", "1", "0"},
          {"Mode", "displayType", "0", "0"},
          {"Mode", "name", "NoName", ""},
          {"Mode", "unit", "", ""},
          {"Mode", "minValue", "0.000000000000", "0.000000000000"},
          {"Mode", "maxValue", "1.000000000000", "0.000000000000"},
          {"Mode", "precision", "2", "0"},
          {"Mode", "canId", "0", "0"},
          {"Mode", "dataType", "15", "0"},
          {"Mode", "showProperties", "0", "0"},
          {"Mode", "endian", "1", "0"},
          {"Mode", "inputInterface", all, all},
          {"Color", "red", "200", "0"},
          {"Color", "green", "0", "0"},
          {"Color", "blue", "0", "0"}},
         true},
        {ObjectType::NodeService,
         &ObjectNodeService::typeInfo,
         {{"Mode", "numberType", "0", "0"},
          {"Mode", "inputInterface", all, all},
          {"Mode", "outputInterface", all, all}},
         false},
        {ObjectType::Statistic,
         &ObjectStatistic::typeInfo,
         {{"Mode", "inputOn", "1", "0"},
          {"Mode", "displayType", "0", "0"},
          {"Mode", "selectedId", "0", "0"},
          {"Mode", "inputInterface", all, all}},
         true},
        {ObjectType::FunctionGen,
         &ObjectFunctionGen::typeInfo,
         {{"Mode", "inputOn", "1", "0"},
          {"Mode", "outputOn", "1", "0"},
          {"Mode", "inputInterface", all, all},
          {"Mode", "outputInterface", all, all},
          {"Generator", "nodeId", "0", "0"},
          {"Generator", "nodeBaseId", "0", "0"},
          {"Generator", "baudrate", "0", "0"},
          {"Generator/Signal", "channel", "0", "0"},
          {"Generator/Signal", "active", "1", "0"},
          {"Generator/Signal", "waveForm", "0", "0"},
          {"Generator/Signal", "canId", "1230", "0"},
          {"Generator/Signal", "dataType", "2", "0"},
          {"Generator/Signal", "frequencyFactor", "1", "0"},
          {"Generator/Signal", "amplitudeFactor", "1", "0"},
          {"Generator/Signal", "offsetFactor", "1", "0"},
          {"Generator/Signal", "frequency", "1.000000000000", "0.000000000000"},
          {"Generator/Signal", "amplitude", "1.000000000000", "0.000000000000"},
          {"Generator/Signal", "offset", "0.000000000000", "0.000000000000"},
          {"Generator/Signal", "separation", "10", "0"}},
         true}};
    return table;
}

class Records : public testing::TestWithParam<std::size_t>
{
protected:
    const RecordCase& record() const { return cases()[GetParam()]; }

    // A project makes the object, since that gives it its type.
    QDomElement writeFresh()
    {
        m_project.createObject(record().type);
        return write();
    }
    QDomElement write()
    {
        m_root = zul::XmlHandler::addElement(m_document, m_document, QStringLiteral("ZUL"));
        m_project.objects().begin()->second->writeXml(m_document, m_root);
        QDomElement element = m_root.firstChildElement();
        m_document.removeChild(m_root);
        return element;
    }
    void read(const QDomElement& element)
    {
        m_project.clear();
        m_project.createObject(record().type)->readXml(element);
    }
    static QDomElement descend(QDomElement element, const char* path)
    {
        for (const QString& tag : QString::fromLatin1(path).split(QLatin1Char('/'))) {
            element = element.firstChildElement(tag);
        }
        return element;
    }
    // Something that a reader of any kind of attribute keeps.
    static QString other(const char* fresh, int step)
    {
        const QString text = QLatin1String(fresh);
        if (text == QLatin1String("0") || text == QLatin1String("1")) {
            return text == QLatin1String("0") ? QStringLiteral("1") : QStringLiteral("0");
        }
        if (text.contains(QLatin1String(".0000"))) {
            return QStringLiteral("%1.250000000000").arg(step + 2);
        }
        bool isNumber = false;
        text.toInt(&isNumber);
        return isNumber ? QString::number(step + 1) : QStringLiteral("text %1").arg(step);
    }

    zul::test::TestHome m_home;
    Project m_project{{record().info()}, m_home.path() + QStringLiteral("default.zul")};
    QDomDocument m_document;
    QDomElement m_root;
};

TEST_P(Records, NewObjectHasTheDefaults)
{
    const QDomElement element = writeFresh();
    EXPECT_EQ(element.tagName(), record().info().tag);
    EXPECT_EQ(element.firstChildElement().tagName(), QStringLiteral("Window"));
    EXPECT_EQ(element.firstChildElement().nextSiblingElement().tagName(), QStringLiteral("Mode"));
    EXPECT_EQ(!element.firstChildElement(QStringLiteral("Filter")).isNull(), record().hasFilter);
    std::map<QString, int> counts;
    for (const Attribute& attribute : record().attributes) {
        const QDomElement holder = descend(element, attribute.element);
        EXPECT_EQ(holder.attribute(QLatin1String(attribute.name), QStringLiteral("absent")),
                  QLatin1String(attribute.fresh))
            << attribute.element << " " << attribute.name;
        ++counts[QLatin1String(attribute.element)];
    }
    for (const auto& [path, count] : counts) {
        const QByteArray text = path.toLatin1();
        EXPECT_EQ(descend(element, text.constData()).attributes().size(), count)
            << text.constData();
    }
}

TEST_P(Records, EveryFieldSurvivesOffItsDefault)
{
    QDomElement element = writeFresh();
    int step = 0;
    for (const Attribute& attribute : record().attributes) {
        QDomElement holder = descend(element, attribute.element);
        if (QLatin1String(attribute.name) != QLatin1String("channel")) {
            holder.setAttribute(QLatin1String(attribute.name), other(attribute.fresh, ++step));
        }
    }
    read(element);
    const QDomElement again = write();
    step = 0;
    for (const Attribute& attribute : record().attributes) {
        if (QLatin1String(attribute.name) != QLatin1String("channel")) {
            EXPECT_EQ(descend(again, attribute.element).attribute(QLatin1String(attribute.name)),
                      other(attribute.fresh, ++step))
                << attribute.element << " " << attribute.name;
        }
    }
}

TEST_P(Records, MissingAttributesReadAsZeroOrEmpty)
{
    QDomElement element = writeFresh();
    for (const Attribute& attribute : record().attributes) {
        descend(element, attribute.element).removeAttribute(QLatin1String(attribute.name));
    }
    read(element);
    const QDomElement again = write();
    for (const Attribute& attribute : record().attributes) {
        EXPECT_EQ(descend(again, attribute.element).attribute(QLatin1String(attribute.name)),
                  QLatin1String(attribute.missing))
            << attribute.element << " " << attribute.name;
    }
}

TEST_P(Records, ReadingTellsAnOpenWindow)
{
    const QDomElement element = writeFresh();
    Object& object = *m_project.objects().begin()->second;
    zul::test::ProbeWindow window;
    object.setDialog(&window);
    object.readXml(element);
    EXPECT_EQ(window.updates, 1);
    object.setDialog(nullptr);
}

INSTANTIATE_TEST_SUITE_P(AllWindows, Records, testing::Range(std::size_t{0}, cases().size()),
                         [](const testing::TestParamInfo<std::size_t>& parameter) {
                             return cases()[parameter.param].info().tag.toLatin1().toStdString();
                         });

template <typename T>
void readText(T& object, const char* xml)
{
    QDomDocument document;
    ASSERT_TRUE(document.setContent(QByteArray(xml)));
    object.readXml(document.documentElement());
}

TEST(FilterRecord, MissingMaximumReadsAsZeroAndCrossedBoundsSwap)
{
    ObjectReceive object;
    readText(object, "<O><Filter on='true' type='1' minId='7'/></O>");
    EXPECT_TRUE(object.filter().isOn());
    EXPECT_EQ(object.filter().type(), 1);
    EXPECT_EQ(object.filter().minId(), 0);
    EXPECT_EQ(object.filter().maxId(), 7);
    readText(object, "<O><Filter minId='20' maxId='10'><FilterId id='5'/><FilterId/></Filter></O>");
    EXPECT_FALSE(object.filter().isOn());
    EXPECT_EQ(object.filter().minId(), 10);
    EXPECT_EQ(object.filter().maxId(), 20);
    EXPECT_EQ(object.filter().ids(), (std::vector<std::uint32_t>{0, 5}));
}

TEST(FilterRecord, EarlierBoundsDoNotDisturb)
{
    ObjectReceive object;
    readText(object, "<O><Filter minId='0' maxId='100'/></O>");
    readText(object, "<O><Filter minId='200' maxId='300'/></O>");
    EXPECT_EQ(object.filter().minId(), 200);
    EXPECT_EQ(object.filter().maxId(), 300);
}

TEST(TransmitRecord, LinesSurviveWithTheirPayload)
{
    zul::test::TestHome home;
    const QString path = home.path() + QStringLiteral("default.zul");
    Project project({ObjectTransmit::typeInfo()}, path);
    auto& written = dynamic_cast<ObjectTransmit&>(*project.createObject(ObjectType::Transmit));
    auto line = std::make_unique<SendMsg>();
    line->name = QStringLiteral("Gear");
    line->id = 0x1FFFFFFF;
    line->byteCount = 3;
    line->rate = -1;
    line->running = 1;
    line->mode = 5;
    line->min = -2.5F;
    line->max = 1e30F;
    line->actual = 0.125F;
    line->data[0] = 0xFF;
    line->data[2] = 7;
    line->data[3] = 99; // beyond the byte count, so it is not stored
    written.lines().push_back(std::move(line));
    written.lines().push_back(std::make_unique<SendMsg>());
    project.save(QString());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("msg=\"0xff 0x0 0x7 \""));

    project.load(path);
    const auto& read = dynamic_cast<const ObjectTransmit&>(*project.objects().begin()->second);
    ASSERT_EQ(read.lines().size(), 2U);
    const SendMsg& first = *read.lines()[0];
    EXPECT_EQ(first.name, QStringLiteral("Gear"));
    EXPECT_EQ(first.id, 0x1FFFFFFFU);
    EXPECT_EQ(first.byteCount, 3U);
    EXPECT_EQ(first.rate, -1);
    EXPECT_EQ(first.running, 1);
    EXPECT_EQ(first.mode, 5U);
    EXPECT_EQ(first.min, -2.5F);
    EXPECT_EQ(first.max, 1e30F);
    EXPECT_EQ(first.actual, 0.125F);
    EXPECT_EQ(first.data[0], 0xFF);
    EXPECT_EQ(first.data[2], 7);
    EXPECT_EQ(first.data[3], 0);
    EXPECT_EQ(read.lines()[1]->name, QStringLiteral("NoName"));
}

TEST(TransmitRecord, PayloadTextIsReadGenerously)
{
    ObjectTransmit object;
    readText(object, "<O><MessageList><Message length='5' msg='  10 0x10  010 junk'/>"
                     "<Message/></MessageList></O>");
    ASSERT_EQ(object.lines().size(), 2U);
    const SendMsg& line = *object.lines()[0];
    EXPECT_EQ(line.name, QStringLiteral("NoName"));
    EXPECT_EQ(line.data[0], 10);
    EXPECT_EQ(line.data[1], 16);
    EXPECT_EQ(line.data[2], 8);
    EXPECT_EQ(line.data[3], 0);
    EXPECT_EQ(line.data[4], 0);
}

TEST(TransmitRecord, MissingAttributesOfALine)
{
    ObjectTransmit object;
    readText(object, "<O><MessageList><Message/></MessageList></O>");
    const SendMsg& line = *object.lines().at(0);
    EXPECT_EQ(line.name, QStringLiteral("NoName"));
    EXPECT_EQ(line.id, 0U);
    EXPECT_EQ(line.byteCount, 0U);
    EXPECT_EQ(line.mode, 0U);
    EXPECT_EQ(line.rate, 0);
    EXPECT_EQ(line.running, 0);
    EXPECT_EQ(line.min, 0.0F);
    EXPECT_EQ(line.max, 1.0F);
    EXPECT_EQ(line.actual, 0.0F);
}

TEST(TransmitRecord, AbsurdLengthsAndLongPayloadsStayInBounds)
{
    ObjectTransmit object;
    std::string payload;
    for (int i = 0; i < 100; ++i) {
        payload += "0x1ff ";
    }
    const std::string xml =
        "<O><MessageList><Message length='-1' msg='" + payload + "'/></MessageList></O>";
    readText(object, xml.c_str());
    EXPECT_EQ(object.lines()[0]->byteCount, 0xFFFFFFFFU);
    EXPECT_EQ(object.lines()[0]->data[63], 0xFF);
}

TEST(TransmitRecord, FloatsBeyondTheirRangeAreClamped)
{
    ObjectTransmit object;
    readText(object, "<O><MessageList><Message max='1e300' min='-1e300'/></MessageList></O>");
    EXPECT_EQ(object.lines()[0]->max, std::numeric_limits<float>::max());
    EXPECT_EQ(object.lines()[0]->min, std::numeric_limits<float>::lowest());
}

TEST(GraphRecord, NewObjectHasOneTraceAndReadingReplacesIt)
{
    ObjectGraph object;
    EXPECT_EQ(object.parameters().size(), 1U);
    readText(object, "<O><Graph><Message nme='a'/></Graph></O>");
    ASSERT_EQ(object.parameters().size(), 1U);
    EXPECT_EQ(object.parameters()[0].parameter.nme, QStringLiteral("a"));
    readText(object, "<O><Graph/></O>");
    EXPECT_TRUE(object.parameters().empty());
}

TEST(FunctionGenRecord, SignalGoesToTheSlotOfItsChannel)
{
    ObjectFunctionGen object;
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(object.channels()[static_cast<std::size_t>(i)].channel, i);
        EXPECT_EQ(object.channels()[static_cast<std::size_t>(i)].canId, 1230U);
    }
    readText(object, "<O><Generator><Signal channel='2' canId='5'/><Signal channel='99' canId='6'/>"
                     "<Signal channel='-3' canId='7'/></Generator></O>");
    EXPECT_EQ(object.channels()[0].canId, 7U);
    EXPECT_EQ(object.channels()[1].canId, 1230U);
    EXPECT_EQ(object.channels()[2].canId, 5U);
    EXPECT_EQ(object.channels()[3].canId, 6U);
}

TEST(BoolAttribute, WordTrueReadsAsTrue)
{
    ObjectTransmit object;
    readText(object, "<O><Mode autoTx='true' outputOn='yes'/></O>");
    EXPECT_TRUE(object.settings().autoTx);
    EXPECT_FALSE(object.settings().outputOn);
}

} // namespace
