#pragma once

#include <QString>

#include <string>

namespace zul::test {

/// The directory of one device module of `tests/modules`, without a slash at its end. Each holds
/// exactly one file that a scan takes for a module.
QString fixtureModuleDirectory(const std::string& name);

} // namespace zul::test
