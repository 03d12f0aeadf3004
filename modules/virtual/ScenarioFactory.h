#pragma once

#include "modules/virtual/Scenario.h"
#include "modules/virtual/ScenarioId.h"

#include <memory>

namespace canvirtual {

/// The scenario of `id`, beginning at `start`; null for `ScenarioId::None`.
std::unique_ptr<Scenario> makeScenario(ScenarioId id, BusTime start);

} // namespace canvirtual
