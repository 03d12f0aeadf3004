#pragma once

#include "project/GraphParameter.h"
#include "project/SettingsObject.h"

#include <cstddef>
#include <vector>

/// `Mode` of an oscilloscope.
struct GraphSettings
{
    bool inputOn = true;
    QString inputInterface = allInterfacesName();

    template <typename Archive, typename Record>
    static void describe(Archive& archive, Record& record)
    {
        archive.field("inputOn", record.inputOn);
        archive.field("inputInterface", record.inputInterface, allInterfacesName());
    }
};

/// The settings of an oscilloscope, with its traces. A new one has one trace.
class ObjectGraph : public SettingsObject<ObjectGraph, GraphSettings, ObjectType::Graph>
{
public:
    /// Parameters beyond these are not read from a file: a window has a row for each.
    static constexpr std::size_t maxParameters = 1000;

    struct Graph
    {
        double xRange = 60.0; ///< seconds
        std::int32_t splitMode = 1;
        std::int32_t autoMode = 1;
        std::int32_t cursorMode = 1;
        QString backgroundColor = QStringLiteral("#000000");
        bool gridOn = true;
        QString gridColor = QStringLiteral("#ff6666");
        QString labelColor = QStringLiteral("#000000");
        QString labelBackColor = QStringLiteral("#bbbbbb");
        bool cursorOn = true;
        bool legendOn = true;
        bool autoScale = true;
        double yMin = -100.0;
        double yMax = 100.0;
    };

    ObjectGraph();
    ~ObjectGraph() override;

    Graph& graph() { return m_graph; }
    const Graph& graph() const { return m_graph; }
    std::vector<GraphParameter>& parameters() { return m_parameters; }
    const std::vector<GraphParameter>& parameters() const { return m_parameters; }

protected:
    void writeChildrenAfterFilter(QDomDocument& document, QDomElement& element) const override;
    void readChild(const QDomElement& element) override;

private:
    Graph m_graph;
    std::vector<GraphParameter> m_parameters;
};
