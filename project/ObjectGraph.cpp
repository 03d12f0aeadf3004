#include "project/ObjectGraph.h"

#include "core/Console.h"

namespace {

const QString graphTag = QStringLiteral("Graph");
const QString messageTag = QStringLiteral("Message");

template <typename Archive, typename Record>
void describeGraph(Archive& archive, Record& graph)
{
    archive.field("xRange", graph.xRange);
    archive.field("splitMode", graph.splitMode);
    archive.field("autoMode", graph.autoMode);
    archive.field("cursorMode", graph.cursorMode);
    archive.field("backgroundColor", graph.backgroundColor);
    archive.field("gridOn", graph.gridOn);
    archive.field("gridColor", graph.gridColor);
    archive.field("labelColor", graph.labelColor);
    archive.field("labelBackColor", graph.labelBackColor);
    archive.field("cursorOn", graph.cursorOn);
    archive.field("legendOn", graph.legendOn);
    archive.field("autoScale", graph.autoScale);
    archive.field("yMin", graph.yMin);
    archive.field("yMax", graph.yMax);
}

// An enumeration in memory, a number in the file.
void describeKind(RecordReader& reader, ProfileParameter& parameter)
{
    std::uint32_t kind = 0;
    reader.field("type", kind);
    parameter.parameterKind = static_cast<ParameterKind>(kind);
}

void describeKind(RecordWriter& writer, const ProfileParameter& parameter)
{
    writer.field("type", static_cast<std::uint32_t>(parameter.parameterKind));
}

template <typename Archive, typename Record>
void describeParameter(Archive& archive, Record& trace)
{
    auto& parameter = trace.parameter;
    archive.field("active", trace.active);
    archive.field("id", parameter.id);
    archive.field("nme", parameter.nme);
    archive.field("pun", parameter.pun);
    archive.field("color", parameter.color);
    describeKind(archive, parameter);
    archive.field("dtc", parameter.dtc);
    archive.field("sppByte", parameter.sppByte);
    archive.field("sppBit", parameter.sppBit);
    archive.field("eppByte", parameter.eppByte);
    archive.field("eppBit", parameter.eppBit);
    archive.field("min", parameter.min);
    archive.field("max", parameter.max);
    archive.field("lsb", parameter.lsb);
    archive.field("endian", parameter.endian);
    archive.field("showSamples", parameter.showSamples);
    archive.field("autoScale", parameter.autoScale);
    archive.field("yMin", parameter.yMin);
    archive.field("yMax", parameter.yMax);
    archive.field("scaleOffset", parameter.scaleOffset);
    archive.field("scaleFactor", parameter.scaleFactor, 1.0);
}

} // namespace

ObjectGraph::ObjectGraph() : m_parameters(1) {}

ObjectGraph::~ObjectGraph() = default;

void ObjectGraph::writeChildrenAfterFilter(QDomDocument& document, QDomElement& element) const
{
    QDomElement graph = addElement(document, element, graphTag);
    RecordWriter graphWriter(document, graph);
    describeGraph(graphWriter, m_graph);
    for (const GraphParameter& parameter : m_parameters) {
        RecordWriter writer(document, addElement(document, graph, messageTag));
        describeParameter(writer, parameter);
    }
}

void ObjectGraph::readChild(const QDomElement& element)
{
    if (element.tagName() != graphTag) {
        return;
    }
    RecordReader graphReader(element);
    describeGraph(graphReader, m_graph);
    m_parameters.clear();
    for (QDomElement child = element.firstChildElement(messageTag); !child.isNull();
         child = child.nextSiblingElement(messageTag)) {
        if (m_parameters.size() == maxParameters) {
            zul::print("Oscilloscope: parameters beyond the first %zu are left out\n",
                       maxParameters);
            break;
        }
        GraphParameter parameter;
        RecordReader reader(child);
        describeParameter(reader, parameter);
        m_parameters.push_back(parameter);
    }
}
