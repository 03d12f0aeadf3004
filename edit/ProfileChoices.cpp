#include "edit/ProfileChoices.h"

#include "profile/Arinc825Id.h"
#include "profile/DataTypes.h"
#include "profile/ProfileChecks.h"
#include "profile/ProfileNumbers.h"
#include "profile/ProfileStore.h"

#include <QLatin1Char>

namespace zul {

namespace {

std::pair<int, QString> row(std::uint32_t code, const QString& label)
{
    constexpr int codeWidth = 3;
    return {asSigned(code),
            QString::number(asSigned(code)).rightJustified(codeWidth) + QLatin1Char(' ') + label};
}

} // namespace

Choices channelChoices(const ProfileStore& store)
{
    Choices choices;
    for (const auto& [code, name] : store.lccCodes()) {
        choices.emplace_back(asSigned(code), name);
    }
    return choices;
}

Choices rciChoices()
{
    Choices choices;
    for (std::uint32_t code = 0; code <= ProfileChecks::maxRci; ++code) {
        choices.emplace_back(asSigned(code), QLatin1Char(arinc825::rciLetter(code)));
    }
    return choices;
}

QString groupName(const ProfileStore& store, const ArincProfile& profile, std::uint32_t fid)
{
    const CodeTable& table = store.currentFidTable();
    const auto label = table.find(fid);
    if (label == table.end()) {
        return {};
    }
    const auto user = profile.userFids.find(fid);
    const bool isUsers =
        user != profile.userFids.end() && label->second == QLatin1String(reservedFid);
    return isUsers ? user->second.name : label->second;
}

Choices fidChoices(const ProfileStore& store, const ArincProfile& profile)
{
    Choices choices;
    for (const auto& [code, label] : store.currentFidTable()) {
        choices.push_back(row(code, groupName(store, profile, code)));
    }
    return choices;
}

Choices unitChoices(const ProfileStore& store, const ArincProfile& profile)
{
    Choices choices;
    for (const auto& [code, label] : store.unitTable()) {
        choices.push_back(row(code, label));
    }
    for (const auto& [code, unit] : profile.userUnits) {
        if (store.unitTable().count(code) == 0) {
            choices.push_back(row(code, unit.name));
        }
    }
    return choices;
}

Choices dataTypeChoices(const ProfileStore& store, const ArincProfile& profile)
{
    Choices choices;
    for (const ArincTypeInfo& type : arincTypes) {
        choices.emplace_back(static_cast<int>(type.type), QLatin1String(type.name));
    }
    for (const auto& [name, enumeration] : profile.enums) {
        if (store.dataTypeNames().count(name) == 0) {
            choices.emplace_back(-enumeration.enumId, name);
        }
    }
    return choices;
}

int dataTypeChoice(const ProfileStore& store, const ArincProfile& profile,
                   const ProfileParameter& parameter)
{
    const auto type = store.dataTypeNames().find(parameter.typeName);
    if (type != store.dataTypeNames().end()) {
        return asSigned(type->second);
    }
    const auto enumeration = profile.enums.find(parameter.typeName);
    return enumeration != profile.enums.end() ? -enumeration->second.enumId : noChoice;
}

} // namespace zul
