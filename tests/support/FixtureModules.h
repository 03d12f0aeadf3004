#pragma once

#include <QString>

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace zul::test {

/// The directory of one device module of `tests/modules`, without a slash at its end. Each holds
/// exactly one file that a scan takes for a module.
QString fixtureModuleDirectory(const std::string& name);

class TestHome;

/// Lets the module registry of the process find fixture modules through "ZUL_HOME", as it finds a
/// user's. To be registered with `testing::AddGlobalTestEnvironment`; the registry scans only once.
class FixtureModuleEnvironment : public testing::Environment
{
public:
    /// `names` are directories of `tests/modules`, `files` are paths of further modules.
    explicit FixtureModuleEnvironment(std::vector<std::string> names,
                                      std::vector<std::string> files = {});
    ~FixtureModuleEnvironment() override;

    void SetUp() override;

private:
    std::vector<std::string> m_names;
    std::vector<std::string> m_files;
    std::unique_ptr<TestHome> m_home;
};

} // namespace zul::test
