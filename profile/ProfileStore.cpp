#include "profile/ProfileStore.h"

#include "core/SettingsStore.h"
#include "profile/Arinc825Id.h"
#include "profile/DataTypes.h"

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
}

void ProfileStore::rebuildFidTables()
{
    m_fidTable825Part2 = zul::makeFidTable825Part2();
    m_fidTable825Part3 = zul::makeFidTable825Part3();
}

const zul::CodeTable& ProfileStore::currentFidTable() const
{
    const int version = SettingsStore::instance().integer(QStringLiteral("ArincProfileVersion"), 0);
    return version != 0 ? m_fidTable825Part3 : m_fidTable825Part2;
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
        return QString::number(value) + QStringLiteral(": Invalid ENUM Value");
    }
    return QString::number(value) + QStringLiteral(": ") + found->second.label;
}
