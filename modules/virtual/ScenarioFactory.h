#pragma once

#include "modules/virtual/GeneratorNode.h"
#include "modules/virtual/NodeSettings.h"
#include "modules/virtual/Scenario.h"
#include "modules/virtual/ScenarioId.h"

#include <memory>

namespace canvirtual {

/// The scenario of `id`, beginning at `start`; null for `ScenarioId::None`.
std::unique_ptr<Scenario> makeScenario(ScenarioId id, BusTime start);

/// The node that `settings` ask for, switched on at `start`; null for `NodeKind::None`. `memory` is
/// what a generator keeps, and not null.
std::unique_ptr<Scenario> makeNode(const NodeSettings& settings,
                                   const std::shared_ptr<GeneratorMemory>& memory, BusTime start);

} // namespace canvirtual
