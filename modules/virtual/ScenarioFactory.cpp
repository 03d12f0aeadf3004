#include "modules/virtual/ScenarioFactory.h"

#include "modules/virtual/SaturatedScenario.h"

namespace canvirtual {

std::unique_ptr<Scenario> makeScenario(ScenarioId id, BusTime start)
{
    switch (id) {
    case ScenarioId::None:
    case ScenarioId::FlightDemo:
    case ScenarioId::FdMix:
    case ScenarioId::ErrorFrames:
    case ScenarioId::BusOff:
    case ScenarioId::Burst:
    case ScenarioId::LostDevice:
        return nullptr;
    case ScenarioId::Saturated:
        return std::make_unique<SaturatedScenario>(start);
    case ScenarioId::Shortest:
        return std::make_unique<ShortestScenario>(start);
    }
    return nullptr;
}

} // namespace canvirtual
