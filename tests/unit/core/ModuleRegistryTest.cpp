#include "core/ModuleRegistry.h"

#include "message/MessageCan.h"
#include "message/MessageStatus.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/FixtureModules.h"
#include "tests/support/TestHome.h"
#include "tests/support/WorkingDirectory.h"

#include <QCoreApplication>
#include <QFile>

#include <gmock/gmock.h>
#include <memory>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using zul::test::ConsoleCapture;
using zul::test::EnvironmentVariable;
using zul::test::fixtureModuleDirectory;
using zul::test::TestHome;

// A scan of directories with what it wrote.
struct Scan
{
    explicit Scan(const QStringList& directories)
        : registry(std::make_unique<ModuleRegistry>(directories))
    {
        out = console.out();
        err = console.err();
    }

    ConsoleCapture console;
    std::unique_ptr<ModuleRegistry> registry;
    std::string out;
    std::string err;
};

Scan scanOf(const std::string& fixture)
{
    return Scan({fixtureModuleDirectory(fixture)});
}

std::vector<std::string> namesOf(const ModuleRegistry& registry)
{
    std::vector<std::string> names;
    for (const auto& module : registry.modules()) {
        names.push_back(module.first);
    }
    return names;
}

std::string local(const QString& text)
{
    return text.toLocal8Bit().constData();
}

struct NameCase
{
    const char* name;
    bool isModule;
};

class ModuleName : public testing::TestWithParam<NameCase>
{
};

TEST_P(ModuleName, IsAcceptedByPrefixAndLastExtension)
{
    EXPECT_EQ(ModuleRegistry::isModuleName(QString::fromLatin1(GetParam().name)),
              GetParam().isModule)
        << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    , ModuleName,
    testing::Values(NameCase{"libCanFoo.so", true}, NameCase{"libCanFoo.dll", true},
                    NameCase{"libCanFoo.dylib", true}, NameCase{"libCan.so", true},
                    NameCase{"libCanFoo.v2.so", true}, NameCase{"libCan.so.so", true},
                    NameCase{"libCanFoo.dll.bak", false}, NameCase{"libCanFoo.so.1", false},
                    NameCase{"libcanfoo.dll", false}, NameCase{"LibCanFoo.so", false},
                    NameCase{"libCanFoo.SO", false}, NameCase{"libCanFoo.Dll", false},
                    NameCase{"libCanFoo", false}, NameCase{"libCanso", false},
                    NameCase{"xlibCanFoo.so", false}, NameCase{".so", false},
                    NameCase{"libCanFoo.", false}, NameCase{"libCanFoo.so ", false},
                    NameCase{"", false}));

TEST(ModuleSearch, WithoutTheVariableTwoDirectories)
{
    const EnvironmentVariable home("ZUL_HOME", nullptr);
    ConsoleCapture console;
    const QStringList directories =
        ModuleRegistry::searchDirectories(QStringLiteral("/opt/zul/bin"));
    EXPECT_EQ(console.out(), "Search DIR </opt/zul/bin>\n");
    EXPECT_EQ(directories, QStringList({QStringLiteral("."), QStringLiteral("/opt/zul/bin")}));
}

TEST(ModuleSearch, WithTheVariableFourDirectories)
{
    const EnvironmentVariable home("ZUL_HOME", "/opt/more");
    const ConsoleCapture console;
    EXPECT_EQ(ModuleRegistry::searchDirectories(QStringLiteral("/opt/zul/bin")),
              QStringList({QStringLiteral("."), QStringLiteral("/opt/zul/bin"),
                           QStringLiteral("/opt/more/bin"), QStringLiteral("/opt/more")}));
}

TEST(ModuleSearch, EmptyVariableCountsAsSet)
{
    const EnvironmentVariable home("ZUL_HOME", "");
    const ConsoleCapture console;
    EXPECT_EQ(ModuleRegistry::searchDirectories(QStringLiteral("/a")),
              QStringList({QStringLiteral("."), QStringLiteral("/a"), QStringLiteral("/bin"),
                           QString::fromLatin1("")}));
}

TEST(ModuleSearch, DirectoriesAreCutAt511Bytes)
{
    const QByteArray longPath = "/" + QByteArray(600, 'x');
    const EnvironmentVariable home("ZUL_HOME", longPath);
    const ConsoleCapture console;
    const QStringList directories =
        ModuleRegistry::searchDirectories(QString::fromLatin1(longPath));
    const QString cut = QString::fromLatin1(longPath.left(511));
    EXPECT_EQ(directories, QStringList({QStringLiteral("."), cut, cut, cut}));
}

TEST(ModuleSearch, DirectoryOf511BytesStaysWhole)
{
    const QString path = QLatin1Char('/') + QString(510, QLatin1Char('x'));
    const ConsoleCapture console;
    EXPECT_EQ(ModuleRegistry::searchDirectories(path).at(1), path);
}

TEST(ModuleScan, GoodModuleIsListedWithItsRecord)
{
    const Scan scan = scanOf("good");
    const ModuleEntry* module = scan.registry->find("libCanGood");
    ASSERT_NE(module, nullptr);
    EXPECT_TRUE(module->handle.isLoaded());
    EXPECT_NE(module->getInfo, nullptr);
    EXPECT_NE(module->createDevice, nullptr);
    EXPECT_EQ(module->info.displayName, "Good");
    EXPECT_EQ(module->info.description, "Made for tests");
    EXPECT_EQ(module->info.moduleName, "libCanGood");
    EXPECT_EQ(module->info.properties.size(), 7U);
}

TEST(ModuleScan, ConsoleLinesOfAGoodModule)
{
    const Scan scan = scanOf("good");
    const std::string directory = local(fixtureModuleDirectory("good"));
    const int handle = scan.registry->find("libCanGood")->handle.handle();
    EXPECT_EQ(scan.out, "Open <" + directory + "> <" + directory + "/libCanGood.so>\n" +
                            "Module Good libCanGood found Properties 7 handle " +
                            std::to_string(handle) + "\n" +
                            "--> Module <libCanGood> Properties 7\n");
    EXPECT_EQ(scan.err, "");
}

TEST(ModuleScan, EveryLibraryExtensionLoads)
{
    EXPECT_THAT(namesOf(*scanOf("dll").registry), ElementsAre("libCanDll"));
    EXPECT_THAT(namesOf(*scanOf("dylib").registry), ElementsAre("libCanDylib"));
}

TEST(ModuleScan, ListIsInByteOrderOfTheModuleNamesNotOfTheFiles)
{
    const Scan scan({fixtureModuleDirectory("good"), fixtureModuleDirectory("another")});
    EXPECT_THAT(namesOf(*scan.registry), ElementsAre("libCanAnother", "libCanGood"));
    EXPECT_THAT(scan.out, HasSubstr("--> Module <libCanAnother> Properties 7\n"
                                    "--> Module <libCanGood> Properties 7\n"));
}

TEST(ModuleScan, SameModuleInTwoDirectoriesIsOneEntryAndTheLaterWins)
{
    const QString early = fixtureModuleDirectory("good");
    const QString late = fixtureModuleDirectory("good_later");
    const Scan scan({early, late});
    EXPECT_THAT(namesOf(*scan.registry), ElementsAre("libCanGood"));
    EXPECT_EQ(scan.registry->find("libCanGood")->info.displayName, "Good, later");
    std::unique_ptr<Device> device(scan.registry->createDevice("libCanGood"));
    ASSERT_NE(device, nullptr);
    EXPECT_EQ(device->info().displayName, "Good, later");

    const Scan other({late, early});
    EXPECT_EQ(other.registry->find("libCanGood")->info.displayName, "Good");
}

TEST(ModuleScan, WorkingDirectoryIsSearchedByItsPoint)
{
    const zul::test::WorkingDirectory here(fixtureModuleDirectory("good"));
    const Scan scan({QStringLiteral(".")});
    EXPECT_THAT(namesOf(*scan.registry), ElementsAre("libCanGood"));
    EXPECT_THAT(scan.out, HasSubstr("Open <.> <./libCanGood.so>\n"));
}

TEST(ModuleScan, EmptyDirectoryNameIsNotTheWorkingDirectory)
{
    const zul::test::WorkingDirectory here(fixtureModuleDirectory("good"));
    const Scan scan({QString()});
    EXPECT_THAT(namesOf(*scan.registry), IsEmpty());
}

TEST(ModuleScan, ModuleWithoutGetInfoIsPassedOver)
{
    const Scan scan = scanOf("no_get_info");
    EXPECT_THAT(namesOf(*scan.registry), IsEmpty());
    EXPECT_EQ(scan.err, "Module <libCanNoGetInfo.so> Function <getInfo> not found !\n");
    EXPECT_THAT(scan.out, Not(HasSubstr("found Properties")));
}

TEST(ModuleScan, ModuleWithGetInfoOnlyIsNotListed)
{
    const Scan scan = scanOf("no_create_device");
    EXPECT_THAT(namesOf(*scan.registry), IsEmpty());
    EXPECT_EQ(scan.err, "Module <libCanNoCreateDevice.so> Function <createDevice> not found !\n");
    EXPECT_THAT(scan.out, HasSubstr("Module No createDevice libCanNoCreateDevice found"));
    EXPECT_THAT(scan.out, Not(HasSubstr("-->")));
}

TEST(ModuleScan, ModuleWhoseGetInfoThrowsIsPassedOver)
{
    const Scan scan = scanOf("get_info_throws");
    EXPECT_THAT(namesOf(*scan.registry), IsEmpty());
    EXPECT_EQ(scan.err, "Device module: getInfo failed: getInfo of the fixture\n");
}

class FileThatDoesNotLoad : public testing::TestWithParam<std::pair<const char*, const char*>>
{
};

TEST_P(FileThatDoesNotLoad, IsOneLineOnStandardErrorAndPassedOver)
{
    const auto [fixture, fileName] = GetParam();
    const Scan scan = scanOf(fixture);
    EXPECT_THAT(namesOf(*scan.registry), IsEmpty());
    const std::string directory = local(fixtureModuleDirectory(fixture));
    EXPECT_EQ(scan.err, "error opening " + directory + "/" + fileName + "\n");
    EXPECT_EQ(scan.out, "Open <" + directory + "> <" + directory + "/" + fileName + ">\n");
}

INSTANTIATE_TEST_SUITE_P(, FileThatDoesNotLoad,
                         testing::Values(std::make_pair("text", "libCanText.so"),
                                         std::make_pair("empty", "libCanEmpty.so"),
                                         std::make_pair("unresolved", "libCanUnresolved.so")));

TEST(ModuleScan, FaultyFilesDoNotKeepTheGoodFromLoading)
{
    const Scan scan({fixtureModuleDirectory("text"), fixtureModuleDirectory("get_info_throws"),
                     fixtureModuleDirectory("absent"), fixtureModuleDirectory("no_get_info"),
                     fixtureModuleDirectory("good"), fixtureModuleDirectory("empty")});
    EXPECT_THAT(namesOf(*scan.registry), ElementsAre("libCanGood"));
}

TEST(ModuleScan, FilesOfOtherNamesAreNotTouched)
{
    const TestHome home;
    const QString good = fixtureModuleDirectory("good") + QStringLiteral("/libCanGood.so");
    for (const char* name : {"libCanGood.so.bak", "libcangood.so", "Good.so", "libCanGood"}) {
        ASSERT_TRUE(QFile::copy(good, home.file(QString::fromLatin1(name))));
    }
    const Scan scan({home.path()});
    EXPECT_THAT(namesOf(*scan.registry), IsEmpty());
    EXPECT_EQ(scan.out, "");
    EXPECT_EQ(scan.err, "");
}

TEST(ModuleScan, DirectoryThatCannotBeReadIsSkipped)
{
    const Scan scan({QStringLiteral("/nowhere/at/all")});
    EXPECT_THAT(namesOf(*scan.registry), IsEmpty());
    EXPECT_EQ(scan.out + scan.err, "");
}

TEST(ModuleScan, NoDirectoriesGiveAnEmptyList)
{
    EXPECT_THAT(namesOf(*Scan({}).registry), IsEmpty());
}

TEST(ModuleRegistry, CreatesDevicesThatTheCallerOwns)
{
    const Scan scan = scanOf("good");
    std::unique_ptr<Device> one(scan.registry->createDevice("libCanGood"));
    const std::unique_ptr<Device> two(scan.registry->createDevice("libCanGood"));
    ASSERT_NE(one, nullptr);
    ASSERT_NE(two, nullptr);
    EXPECT_NE(one, two);
    EXPECT_EQ(one->info().moduleName, "libCanGood");
    EXPECT_EQ(static_cast<int>(one->status()), 0);
    one->setProperty("PublishCounts", "");
    EXPECT_EQ(one->getStringProp("LiveCount"), "2");
}

TEST(ModuleRegistry, MessagesOfAModuleAreKnownByTheirRunTimeType)
{
    const Scan scan = scanOf("status_driven");
    std::unique_ptr<Device> device(scan.registry->createDevice("libCanGRV614UDP"));
    ASSERT_NE(device, nullptr);
    device->setProperty("InjectFrame", "291 1 0 1.5 0a ff");
    device->setProperty("InjectStatus", "1 2 3 4 25");
    device->setProperty("InjectOther", "");

    const std::unique_ptr<Message> first(device->recvMessage());
    const auto* frame = message_cast<zul::MessageCan>(first.get());
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->id(), 291U);
    EXPECT_EQ(frame->byteCount(), 2U);
    EXPECT_EQ(frame->msg()[1], 0xFF);

    const std::unique_ptr<Message> second(device->recvMessage());
    const auto* status = message_cast<zul::MessageStatus>(second.get());
    ASSERT_NE(status, nullptr);
    EXPECT_EQ(status->bitCount0 + status->bitCount1, 3U);
    EXPECT_EQ(status->messageCount0 + status->messageCount1, 7U);
    EXPECT_EQ(status->entries.size(), 25U);

    const std::unique_ptr<Message> third(device->recvMessage());
    ASSERT_NE(third, nullptr);
    EXPECT_EQ(message_cast<zul::MessageCan>(third.get()), nullptr);
    EXPECT_EQ(device->recvMessage(), nullptr);
}

TEST(ModuleRegistry, BothStatusDrivenModulesAreFound)
{
    const Scan scan(
        {fixtureModuleDirectory("status_driven_fd"), fixtureModuleDirectory("status_driven")});
    EXPECT_THAT(namesOf(*scan.registry), ElementsAre("libCanGRV614UDP", "libCanGRV614UDP_FD"));
}

TEST(ModuleRegistry, UnknownModuleMakesNoDevice)
{
    const Scan scan = scanOf("good");
    EXPECT_EQ(scan.registry->createDevice("libCanOther"), nullptr);
    EXPECT_EQ(scan.registry->createDevice(""), nullptr);
    EXPECT_EQ(scan.registry->find("libcangood"), nullptr);
}

TEST(ModuleRegistry, ModuleThatMakesNoDeviceGivesNull)
{
    const Scan scan = scanOf("create_device_null");
    ASSERT_NE(scan.registry->find("libCanCreateDeviceNull"), nullptr);
    EXPECT_EQ(scan.registry->createDevice("libCanCreateDeviceNull"), nullptr);
}

TEST(ModuleRegistry, ModuleWhoseCreateDeviceThrowsGivesNullAndALine)
{
    const Scan scan = scanOf("create_device_throws");
    ConsoleCapture console;
    EXPECT_EQ(scan.registry->createDevice("libCanCreateDeviceThrows"), nullptr);
    EXPECT_EQ(console.err(), "Device module: createDevice failed: createDevice of the fixture\n");
}

TEST(ModuleRegistry, TheOneOfTheProcessScansOnceWithTheApplicationDirectory)
{
    const EnvironmentVariable home("ZUL_HOME", fixtureModuleDirectory("good").toLocal8Bit());
    ConsoleCapture first;
    const ModuleRegistry& registry = ModuleRegistry::instance();
    EXPECT_THAT(first.out(),
                testing::StartsWith("Search DIR <" + local(QCoreApplication::applicationDirPath()) +
                                    ">\n"));
    EXPECT_NE(registry.find("libCanGood"), nullptr);

    ConsoleCapture second;
    EXPECT_EQ(&ModuleRegistry::instance(), &registry);
    EXPECT_EQ(second.out(), "");
}

} // namespace
