#include "tests/support/FixtureModules.h"

#include "core/Latin1.h"

namespace zul::test {

QString fixtureModuleDirectory(const std::string& name)
{
    return fromLatin1(ZUL_FIXTURE_MODULES_DIR) + QLatin1Char('/') + fromLatin1(name);
}

} // namespace zul::test
