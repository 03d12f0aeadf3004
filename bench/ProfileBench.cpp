// Profiles of many parameters: reading, holding against each other, finding by identifier.

#include "bench/BenchMain.h"
#include "bench/ProfileFiles.h"
#include "core/SettingsStore.h"
#include "profile/ProfileCrossCheck.h"
#include "profile/ProfileStore.h"
#include "profile/TextProfileReader.h"
#include "profile/XmlProfileReader.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>
#include <QXmlStreamReader>

#include <cstdio>
#include <malloc.h>
#include <random>
#include <unordered_map>

namespace {

constexpr int fewParameters = 1'000;
constexpr int manyParameters = 50'000;
constexpr int profileCount = 20;
constexpr int indexSize = 1'000'000;

bench::ProfileFiles& files()
{
    static bench::ProfileFiles made;
    return made;
}

void fail(benchmark::State& state, const ArincProfile& profile)
{
    state.SkipWithError(profile.result.left(400).toUtf8().constData());
}

void readText(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const QString path = files().text(count);
    for ([[maybe_unused]] auto _ : state) {
        ProfileStore store;
        ArincProfile profile;
        if (!zul::readTextProfile(path, store, profile) || !profile.valid) {
            fail(state, profile);
        }
    }
    bench::setItems(state, count);
}

// The least that taking the lines apart with Qt takes.
void splitText(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const QString path = files().text(count);
    for ([[maybe_unused]] auto _ : state) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            state.SkipWithError("no file");
        }
        QTextStream stream(&file);
        QString line;
        while (stream.readLineInto(&line)) {
            benchmark::DoNotOptimize(line.trimmed().split(QLatin1Char(';')).size());
        }
    }
    bench::setItems(state, count);
}

void readXml(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const QString path = files().xml(count);
    for ([[maybe_unused]] auto _ : state) {
        ProfileStore store;
        ArincProfile profile;
        if (!zul::readXmlProfile(path, store, profile) || !profile.valid) {
            fail(state, profile);
        }
    }
    bench::setItems(state, count);
}

// The least that parsing with Qt takes, attributes included.
void parseXml(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const QString path = files().xml(count);
    for ([[maybe_unused]] auto _ : state) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            state.SkipWithError("no file");
        }
        QXmlStreamReader reader(&file);
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement) {
                benchmark::DoNotOptimize(reader.attributes().size());
            }
        }
    }
    bench::setItems(state, count);
}

const ProfileStore::Profiles& profiles(int parameters)
{
    static std::map<int, ProfileStore::Profiles> sets;
    ProfileStore::Profiles& set = sets[parameters];
    for (int number = static_cast<int>(set.size()); number < profileCount; ++number) {
        ProfileStore store;
        ArincProfile profile;
        zul::readTextProfile(files().text(parameters, number), store, profile);
        set[profile.name] = profile;
    }
    return set;
}

void checkAll(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const ProfileStore::Profiles& set = profiles(count);
    for ([[maybe_unused]] auto _ : state) {
        QString report;
        zul::crossCheck(set, report); // the profiles share their own function codes and their unit
        benchmark::DoNotOptimize(report.size());
    }
    bench::setItems(state, std::int64_t{count} * profileCount);
}

// The least that finding an identifier that two profiles have takes.
void mapOfIdentifiers(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const ProfileStore::Profiles& set = profiles(count);
    for ([[maybe_unused]] auto _ : state) {
        std::unordered_map<std::uint32_t, const QString*> owners;
        for (const auto& [name, profile] : set) {
            for (const auto& [fid, group] : profile.fids) {
                for (const auto& [serial, parameter] : group.parameters) {
                    owners[parameter.id] = &profile.fileName;
                }
            }
        }
        benchmark::DoNotOptimize(owners.size());
    }
    bench::setItems(state, std::int64_t{count} * profileCount);
}

// Identifiers of a bus, each asked for as often as the others.
std::vector<std::uint32_t> identifiers()
{
    constexpr std::size_t asked = 10'000;
    std::mt19937 random(1);
    std::uniform_int_distribution<std::uint32_t> any(0, indexSize / 4 - 1);
    std::vector<std::uint32_t> ids(asked);
    for (std::uint32_t& id : ids) {
        id = any(random) << 2;
    }
    return ids;
}

template <typename Index, typename Value>
void fill(Index& index, const Value& value)
{
    for (std::uint32_t i = 0; i < indexSize; ++i) {
        index.emplace(i / 4 << 2, value);
    }
}

template <typename Index>
void look(benchmark::State& state, const Index& index)
{
    const std::vector<std::uint32_t> ids = identifiers();
    for ([[maybe_unused]] auto _ : state) {
        std::size_t found = 0;
        for (const std::uint32_t id : ids) {
            const auto range = index.equal_range(id);
            for (auto entry = range.first; entry != range.second; ++entry) {
                ++found;
            }
        }
        benchmark::DoNotOptimize(found);
    }
    bench::setItems(state, static_cast<std::int64_t>(ids.size()));
}

void indexLookup(benchmark::State& state)
{
    static ProfileStore::ParameterIndex index;
    if (index.empty()) {
        fill(index, ProfileParameter());
    }
    look(state, index);
}

void plainIndexLookup(benchmark::State& state)
{
    static std::multimap<std::uint32_t, std::uint32_t> index;
    if (index.empty()) {
        fill(index, std::uint32_t{1});
    }
    look(state, index);
}

BENCHMARK(readText)->Arg(fewParameters)->Arg(manyParameters);
BENCHMARK(splitText)->Arg(fewParameters)->Arg(manyParameters);
BENCHMARK(readXml)->Arg(fewParameters)->Arg(manyParameters);
BENCHMARK(parseXml)->Arg(fewParameters)->Arg(manyParameters);
BENCHMARK(checkAll)->Arg(fewParameters)->Arg(manyParameters);
BENCHMARK(mapOfIdentifiers)->Arg(fewParameters)->Arg(manyParameters);
BENCHMARK(indexLookup);
BENCHMARK(plainIndexLookup);

// What a loaded profile holds of the heap, against the size of its file.
void printMemory(const char* form, const QString& path,
                 bool (*read)(const QString&, ProfileStore&, ArincProfile&))
{
    const std::size_t before = mallinfo2().uordblks;
    ProfileStore store;
    ArincProfile profile;
    read(path, store, profile);
    const std::size_t held = mallinfo2().uordblks - before;
    const double size = static_cast<double>(QFile(path).size());
    constexpr double mega = 1e6;
    std::printf("%s profile of %d parameters: file %.1f MB, in memory %.1f MB, %.1f times\n", form,
                manyParameters, size / mega, static_cast<double>(held) / mega,
                static_cast<double>(held) / size);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    const int result = bench::runBenchmarks(argumentCount, arguments,
                                            {{"readText/50000", "splitText/50000", 0.0},
                                             {"readText/50000", "readText/1000", 0.0},
                                             {"readXml/50000", "parseXml/50000", 0.0},
                                             {"readXml/50000", "readXml/1000", 0.0},
                                             {"checkAll/50000", "mapOfIdentifiers/50000", 0.0},
                                             {"checkAll/50000", "checkAll/1000", 0.0},
                                             {"indexLookup", "plainIndexLookup", 0.0}});
    printMemory("Text", files().text(manyParameters), &zul::readTextProfile);
    printMemory("XML", files().xml(manyParameters), &zul::readXmlProfile);
    return result;
}
