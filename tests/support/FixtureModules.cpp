#include "tests/support/FixtureModules.h"

#include "core/Latin1.h"
#include "core/ModuleRegistry.h"
#include "tests/support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace zul::test {

QString fixtureModuleDirectory(const std::string& name)
{
    return fromLatin1(ZUL_FIXTURE_MODULES_DIR) + QLatin1Char('/') + fromLatin1(name);
}

FixtureModuleEnvironment::FixtureModuleEnvironment(std::vector<std::string> names,
                                                   std::vector<std::string> files)
    : m_names(std::move(names)), m_files(std::move(files))
{
}

FixtureModuleEnvironment::~FixtureModuleEnvironment() = default;

void FixtureModuleEnvironment::SetUp()
{
    m_home = std::make_unique<TestHome>();
    for (const std::string& name : m_names) {
        const QDir from(fixtureModuleDirectory(name));
        for (const QString& file : from.entryList({QStringLiteral("libCan*")}, QDir::Files)) {
            ASSERT_TRUE(QFile::link(from.filePath(file), m_home->file(file)));
        }
    }
    for (const std::string& path : m_files) {
        const QFileInfo file(fromLatin1(path));
        ASSERT_TRUE(QFile::link(file.filePath(), m_home->file(file.fileName())));
    }
    qputenv("ZUL_HOME", m_home->path().toLocal8Bit());
    ModuleRegistry::instance();
}

} // namespace zul::test
