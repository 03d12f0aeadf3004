#include "modules/virtual/ScenarioFactory.h"

#include "modules/virtual/FlightScenario.h"
#include "modules/virtual/SaturatedScenario.h"

namespace canvirtual {

std::unique_ptr<Scenario> makeScenario(ScenarioId id, BusTime start)
{
    switch (id) {
    case ScenarioId::None:
    case ScenarioId::LostDevice:
    case ScenarioId::Burst:
    case ScenarioId::BusOff:
    case ScenarioId::ErrorFrames:
    case ScenarioId::FdMix:
        return nullptr;
    case ScenarioId::FlightDemo:
        return std::make_unique<FlightScenario>(start);
    case ScenarioId::Saturated:
        return std::make_unique<SaturatedScenario>(start);
    case ScenarioId::Shortest:
        return std::make_unique<ShortestScenario>(start);
    }
    return nullptr;
}

} // namespace canvirtual
