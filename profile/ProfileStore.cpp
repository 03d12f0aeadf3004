#include "profile/ProfileStore.h"

#include "core/DirectoryListing.h"
#include "core/Settings.h"
#include "core/SettingsStore.h"
#include "profile/Arinc825Id.h"
#include "profile/DataTypes.h"
#include "profile/ProfileCrossCheck.h"
#include "profile/ProfileReport.h"
#include "profile/TextProfileReader.h"
#include "profile/TextProfileWriter.h"
#include "profile/XmlProfileNames.h"
#include "profile/XmlProfileReader.h"
#include "profile/XmlProfileWriter.h"
#include "profile/XmlSource.h"
#include "profile/ZorbProfileReader.h"

#include <QStringBuilder>
#include <QStringList>

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

namespace {

// Deliberate: the reader of ZORB profiles wants "ZORBprofile", so that none comes this way.
const QLatin1String zorbProfileGate("ZORBProfile");

// Version 0 of the setting is ARINC 825-2 in text form, all others ARINC 825-3 in XML.
bool isXmlVersion()
{
    return SettingsStore::instance().integer(QLatin1String(zul::setting::arincProfileVersion),
                                             zul::setting::arinc_version::part2) !=
           zul::setting::arinc_version::part2;
}

QString suffixOf(const QString& fileName)
{
    const int dot = fileName.lastIndexOf(QLatin1Char('.'));
    return dot >= 0 ? fileName.mid(dot) : QString();
}

QStringList searchPath()
{
    QStringList path{QStringLiteral(".")};
    if (qEnvironmentVariableIsSet("ZUL_HOME")) {
        const QString home = qEnvironmentVariable("ZUL_HOME");
        path << home + QStringLiteral("/bin") << home;
    }
    return path;
}

} // namespace

ProfileStore& ProfileStore::instance()
{
    static auto* store = new ProfileStore; // lives until process exit
    return *store;
}

ProfileStore::ProfileStore() : m_unitTable(zul::makeUnitTable())
{
    for (const zul::arinc825::Channel& channel : zul::arinc825::channels) {
        if (channel.isInProfiles) {
            m_lccNames[QLatin1String(channel.name)] = channel.lcc;
            m_lccCodes[channel.lcc] = QLatin1String(channel.name);
        }
    }
    for (const zul::ArincTypeInfo& type : zul::arincTypes) {
        m_dataTypeNames[QLatin1String(type.name)] = static_cast<std::uint32_t>(type.type);
    }
    std::uint32_t code = 0;
    for (const zul::CanAerospaceTypeInfo& type : zul::canAerospaceTypes) {
        m_canAerospaceTypeNames[QLatin1String(type.name)] = code;
        m_canAerospaceTypeCodes[code] = QLatin1String(type.name);
        ++code;
    }
    rebuildFidTables();
    qRegisterMetaType<ProfileParameter>(); // it travels in signals
}

void ProfileStore::rebuildFidTables()
{
    m_fidTable825Part2 = zul::makeFidTable825Part2();
    m_fidTable825Part3 = zul::makeFidTable825Part3();
}

const zul::CodeTable& ProfileStore::currentFidTable() const
{
    return isXmlVersion() ? m_fidTable825Part3 : m_fidTable825Part2;
}

std::uint32_t ProfileStore::canAerospaceTypeCode(const QString& name)
{
    return m_canAerospaceTypeNames.emplace(name, 0).first->second;
}

QString ProfileStore::enumText(std::int32_t enumId, std::int32_t value) const
{
    const auto enumeration = m_enumerations.find(enumId);
    if (enumeration == m_enumerations.end()) {
        return QStringLiteral("Unknown ENUM Type");
    }
    const auto& values = enumeration->second.values;
    const auto found = values.find(value);
    if (found == values.end()) {
        return QString::number(value) % QLatin1String(": Invalid ENUM Value");
    }
    return QString::number(value) % QLatin1String(": ") % found->second.label;
}

void ProfileStore::loadAll()
{
    unloadAll();
    rebuildFidTables();
    const SettingsStore& settings = SettingsStore::instance();
    const QString arincSuffix =
        settings.string(QLatin1String(zul::setting::arinc825ProfileSuffix), QString());
    const QString zorbSuffix =
        settings.string(QLatin1String(zul::setting::canAsProfileSuffix), QString());
    for (const QString& directory : searchPath()) {
        loadDirectory(directory, arincSuffix, zorbSuffix);
    }
    collectEnumerations();
    rebuildFidTables();
}

void ProfileStore::loadDirectory(const QString& directory, const QString& arincSuffix,
                                 const QString& zorbSuffix)
{
    // Deliberate: the bare names are opened, in the working directory.
    for (const QString& fileName : zul::fileNamesWithPoint(directory)) {
        const QString suffix = suffixOf(fileName);
        if (suffix == arincSuffix) {
            loadArincProfile(fileName);
        }
        if (suffix == zorbSuffix) {
            loadZorbProfile(fileName);
        }
    }
}

void ProfileStore::loadArincProfile(const QString& fileName)
{
    ArincProfile profile;
    if (!readProfile(fileName, profile)) {
        return;
    }
    const auto found = m_profiles.find(profile.name);
    if (found == m_profiles.end()) {
        const QString name = profile.name;
        m_profiles.emplace(name, std::move(profile));
        return;
    }
    // Deliberate: the parameters of the profile that is dropped stay in the index.
    m_allValid = false;
    zul::appendToCheck(m_checkResult,
                       zul::sameNameMessage(profile.fileName, found->second.fileName));
}

void ProfileStore::loadZorbProfile(const QString& fileName)
{
    ZorbProfile profile;
    if (zul::readZorbProfile(fileName, *this, profile)) {
        const QString name = profile.name;
        m_zorbProfiles[name] = std::move(profile);
    }
}

bool ProfileStore::loadFile(const QString& path)
{
    m_allValid = true;
    m_checkResult.clear();
    const std::optional<QString> root = zul::xmlRootName(path);
    if (!root) {
        return false; // Deliberate: also for a text profile, although the file dialog offers it
    }
    bool isLoaded = false;
    if (*root == QLatin1String(zul::xmlProfile::root)) {
        ArincProfile profile;
        isLoaded = readProfile(path, profile);
        if (isLoaded) {
            replaceProfile(std::move(profile));
        }
    } else if (*root == zorbProfileGate) {
        ZorbProfile profile;
        isLoaded = zul::readZorbProfile(path, *this, profile);
        if (isLoaded) {
            const QString name = profile.name;
            m_zorbProfiles[name] = std::move(profile);
        }
    }
    collectEnumerations();
    rebuildFidTables();
    return isLoaded;
}

void ProfileStore::replaceProfile(ArincProfile profile)
{
    const QString name = profile.name;
    // Deliberate: unlike a file that is dropped for its name, one that is replaced leaves nothing
    // behind. Loaded again and again, its parameters would be found as often.
    const auto old = m_profiles.find(name);
    if (old != m_profiles.end()) {
        for (const auto& [enumName, enumeration] : old->second.enums) {
            m_enumerations.erase(enumeration.enumId);
        }
        removeFromIndex(old->second);
    }
    m_profiles[name] = std::move(profile);
}

void ProfileStore::removeFromIndex(const ArincProfile& profile)
{
    std::vector<std::pair<std::uint32_t, std::uint32_t>> parameters; // identifier, serial
    for (const auto& group : profile.fids) {
        for (const auto& entry : group.second.parameters) {
            parameters.emplace_back(entry.second.id, entry.second.serial);
        }
    }
    std::sort(parameters.begin(), parameters.end());
    // What the index has of an identifier is walked once: a file may have them all on one.
    std::optional<std::uint32_t> walked;
    for (const auto& parameter : parameters) {
        const std::uint32_t id = parameter.first;
        if (walked == id) {
            continue;
        }
        walked = id;
        const auto range = m_parameterIndex.equal_range(id);
        for (auto indexed = range.first; indexed != range.second;) {
            const bool isOfProfile = std::binary_search(parameters.begin(), parameters.end(),
                                                        std::make_pair(id, indexed->second.serial));
            indexed = isOfProfile ? m_parameterIndex.erase(indexed) : std::next(indexed);
        }
    }
}

void ProfileStore::addToIndex(const ProfileParameter& parameter)
{
    m_parameterIndex.emplace(parameter.id, parameter);
}

void ProfileStore::unloadAll()
{
    m_profiles.clear();
    m_zorbProfiles.clear();
    m_enumerations.clear();
    m_parameterIndex.clear();
    m_allValid = true;
    m_checkResult.clear();
}

bool ProfileStore::checkAll(QString& report)
{
    if (!zul::crossCheck(m_profiles, m_checkResult)) {
        m_allValid = false;
    }
    report = m_checkResult;
    return m_allValid;
}

bool ProfileStore::readProfile(const QString& path, ArincProfile& profile)
{
    if (isXmlVersion()) {
        return zul::readXmlProfile(path, *this, profile);
    }
    return zul::readTextProfile(path, *this, profile);
}

bool ProfileStore::saveProfile(const QString& path, const ArincProfile& profile) const
{
    return isXmlVersion() ? zul::writeXmlProfile(path, profile)
                          : zul::writeTextProfile(path, *this, profile);
}

bool ProfileStore::writeProfile(const QString& path, const ArincProfile& profile) const
{
    const bool isSaved = saveProfile(path, profile);
    return isSaved || isXmlVersion(); // Deliberate: a failure to save XML is not told
}

void ProfileStore::addEnumeration(const ProfileEnum& enumeration)
{
    m_enumerations[enumeration.enumId] = enumeration;
}

void ProfileStore::collectEnumerations()
{
    for (const auto& [profileName, profile] : m_profiles) {
        for (const auto& [name, enumeration] : profile.enums) {
            addEnumeration(enumeration);
        }
    }
}
