#include "modules/virtual/ScenarioFactory.h"

#include "modules/virtual/BurstScenario.h"
#include "modules/virtual/FaultScenario.h"
#include "modules/virtual/FdScenario.h"
#include "modules/virtual/FlightScenario.h"
#include "modules/virtual/SaturatedScenario.h"
#include "modules/virtual/ServerNode.h"

namespace canvirtual {

std::unique_ptr<Scenario> makeScenario(ScenarioId id, BusTime start)
{
    switch (id) {
    case ScenarioId::None:
        return nullptr;
    case ScenarioId::FlightDemo:
        return std::make_unique<FlightScenario>(start);
    case ScenarioId::FdMix:
        return std::make_unique<FdScenario>(start);
    case ScenarioId::Saturated:
        return std::make_unique<SaturatedScenario>(start);
    case ScenarioId::Shortest:
        return std::make_unique<ShortestScenario>(start);
    case ScenarioId::ErrorFrames:
        return std::make_unique<ErrorFramesScenario>(start);
    case ScenarioId::BusOff:
        return std::make_unique<BusOffScenario>(start);
    case ScenarioId::Burst:
        return std::make_unique<BurstScenario>(start);
    case ScenarioId::LostDevice:
        return std::make_unique<LostDeviceScenario>(start);
    }
    return nullptr;
}

std::unique_ptr<Scenario> makeNode(const NodeSettings& settings,
                                   const std::shared_ptr<GeneratorMemory>& memory, BusTime start)
{
    switch (settings.kind) {
    case NodeKind::None:
        break;
    case NodeKind::ServiceServer:
        return std::make_unique<ServerNode>(settings);
    case NodeKind::FunctionGenerator:
        return std::make_unique<GeneratorNode>(settings, memory, start);
    }
    return nullptr;
}

} // namespace canvirtual
