#pragma once

#include "project/GraphParameter.h"
#include "project/ObjectTypeInfo.h"
#include "project/WindowObject.h"

#include <vector>

/// The settings of an oscilloscope, with its traces. A new one has one trace.
class ObjectGraph : public WindowObject
{
public:
    struct Settings
    {
        bool inputOn = true;
        QString inputInterface = allInterfacesName();
    };

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

    static std::unique_ptr<Object> create();
    static ObjectTypeInfo typeInfo();

    Settings& settings() { return m_settings; }
    const Settings& settings() const { return m_settings; }
    Graph& graph() { return m_graph; }
    const Graph& graph() const { return m_graph; }
    std::vector<GraphParameter>& parameters() { return m_parameters; }
    const std::vector<GraphParameter>& parameters() const { return m_parameters; }

protected:
    void writeMode(RecordWriter& writer) const override;
    void readMode(RecordReader& reader) override;
    void writeChildrenAfterFilter(QDomDocument& document, QDomElement& element) const override;
    void readChild(const QDomElement& element) override;

private:
    Settings m_settings;
    Graph m_graph;
    std::vector<GraphParameter> m_parameters;
};
