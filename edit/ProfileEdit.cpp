#include "edit/ProfileEdit.h"

#include "edit/ProfileChoices.h"
#include "edit/ProfileSelection.h"
#include "profile/ComposedId.h"
#include "profile/DataTypes.h"
#include "profile/ProfileChecks.h"
#include "profile/ProfileStore.h"

#include <QFileInfo>

#include <limits>
#include <utility>

namespace {

// Gives the entry `from` of a map the key `to`; null, and nothing changed, if there is no such
// entry or another one has that key.
template <typename Map>
typename Map::mapped_type* move(Map& map, const typename Map::key_type& from,
                                const typename Map::key_type& to)
{
    if (map.count(to) != 0) {
        return nullptr;
    }
    auto node = map.extract(from);
    if (node.empty()) {
        return nullptr;
    }
    node.key() = to;
    return &map.insert(std::move(node)).position->second;
}

// The first number from `lowest` to `highest` that no entry of the map has.
template <typename Map>
std::optional<typename Map::key_type> firstFree(const Map& map, typename Map::key_type lowest,
                                                typename Map::key_type highest)
{
    auto candidate = lowest;
    for (auto entry = map.lower_bound(lowest); entry != map.end(); ++entry) {
        if (entry->first != candidate) {
            break;
        }
        if (candidate == highest) {
            return std::nullopt;
        }
        ++candidate;
    }
    return candidate;
}

template <typename Visit>
void eachParameter(ArincProfile& profile, Visit visit)
{
    for (auto& [fid, group] : profile.fids) {
        for (auto& [serial, parameter] : group.parameters) {
            visit(parameter);
        }
    }
}

// A file of bytes that are no profile, such as a picture: readers of text find no section in it,
// and no fault. One that holds faults only is a profile to be mended.
bool holdsNothing(const ArincProfile& profile)
{
    return profile.valid && profile.header.isEmpty() && profile.name.isEmpty() &&
           profile.comment.isEmpty() && profile.id == 0 && profile.subId == 0 &&
           profile.fids.empty() && profile.enums.empty() && profile.userFids.empty() &&
           profile.userUnits.empty();
}

} // namespace

ProfileEdit::ProfileEdit(ProfileStore& store) : m_store(store)
{
    clear();
}

void ProfileEdit::clear()
{
    m_unitUsers = UnitUsers();
    m_profile = ArincProfile();
    m_profile.name = QLatin1String(newProfileName);
}

bool ProfileEdit::read(const QString& path)
{
    ArincProfile profile;
    if (!m_store.readProfile(path, profile) ||
        (holdsNothing(profile) && QFileInfo(path).size() > 0)) {
        return false;
    }
    m_store.removeFromIndex(profile); // frames are decoded by loaded profiles only
    m_profile = std::move(profile);
    m_unitUsers = UnitUsers();
    return true;
}

bool ProfileEdit::write(const QString& path) const
{
    return m_store.saveProfile(path, m_profile);
}

std::optional<std::uint32_t> ProfileEdit::addUserFid()
{
    for (const auto& [code, label] : m_store.currentFidTable()) {
        if (label == QLatin1String(zul::reservedFid) && m_profile.userFids.count(code) == 0) {
            ProfileUserFid& added = m_profile.userFids[code];
            added.code = code;
            added.name = QStringLiteral("New FID");
            return code;
        }
    }
    return std::nullopt;
}

std::optional<std::uint32_t> ProfileEdit::addUserUnit()
{
    const auto code =
        firstFree(m_profile.userUnits, zul::ProfileChecks::minUserUnit, zul::ProfileChecks::maxPuc);
    if (code) {
        ProfileUserUnit& added = m_profile.userUnits[*code];
        added.code = *code;
        added.name = QStringLiteral("NewUnit");
    }
    return code;
}

QString ProfileEdit::addEnumeration()
{
    const QString first = QStringLiteral("NewEnum");
    QString name = first;
    for (int number = 1; m_profile.enums.count(name) != 0; ++number) {
        name = first + QString::number(number);
    }
    ProfileEnum& added = m_profile.enums[name];
    added.enumId = m_store.nextEnumId();
    added.name = name;
    return name;
}

std::optional<std::int32_t> ProfileEdit::addEnumValue(const QString& enumName)
{
    const auto found = m_profile.enums.find(enumName);
    if (found == m_profile.enums.end() || enumName == QLatin1String(ProfileSelection::noEnum)) {
        return std::nullopt;
    }
    auto& values = found->second.values;
    const auto value = firstFree(values, 0, std::numeric_limits<std::int32_t>::max());
    if (value) {
        ProfileEnumValue& added = values[*value];
        added.value = *value;
        added.label = QStringLiteral("NewValue");
    }
    return value;
}

std::optional<std::uint32_t> ProfileEdit::addChapter()
{
    const auto code = firstFree(m_profile.fids, 0, zul::fidCount - 1);
    if (code) {
        ProfileFidGroup& added = m_profile.fids[*code];
        added.fid = *code;
        added.name = m_store.currentFidTable().at(*code);
    }
    return code;
}

std::optional<std::uint32_t> ProfileEdit::addParameter(std::uint32_t fid)
{
    const auto group = m_profile.fids.find(fid);
    if (group == m_profile.fids.end()) {
        return std::nullopt;
    }
    ProfileParameter parameter;
    parameter.parameterKind = ParameterKind::Arinc825;
    parameter.fid = fid;
    const std::uint32_t serial = parameter.serial;
    group->second.parameters.emplace(serial, std::move(parameter));
    return serial;
}

bool ProfileEdit::setUserFidCode(std::uint32_t from, std::uint32_t to)
{
    ProfileUserFid* moved = move(m_profile.userFids, from, to);
    if (moved == nullptr) {
        return false;
    }
    moved->code = to;
    return true;
}

bool ProfileEdit::setUserUnitCode(std::uint32_t from, std::uint32_t to)
{
    const UnitUsers& users = usersOfUnit(from);
    ProfileUserUnit* moved = move(m_profile.userUnits, from, to);
    if (moved == nullptr) {
        return false;
    }
    moved->code = to;
    eachParameter(m_profile, [&users, to](ProfileParameter& parameter) {
        if (users.ofCode.count(parameter.serial) != 0) {
            parameter.puc = to;
        }
    });
    return true;
}

std::set<std::uint32_t> ProfileEdit::renameUserUnit(std::uint32_t code, const QString& name)
{
    const auto unit = m_profile.userUnits.find(code);
    if (unit == m_profile.userUnits.end()) {
        return {};
    }
    const UnitUsers& users = usersOfUnit(code);
    unit->second.name = name;
    if (!users.ofName.empty()) {
        eachParameter(m_profile, [&users, &name](ProfileParameter& parameter) {
            if (users.ofName.count(parameter.serial) != 0) {
                setUnitName(parameter, name);
            }
        });
    }
    return users.ofName;
}

void ProfileEdit::holdUnit(std::uint32_t code)
{
    m_unitUsers = UnitUsers();
    const auto unit = m_profile.userUnits.find(code);
    if (unit == m_profile.userUnits.end()) {
        return;
    }
    m_unitUsers.unit = unit->second.serial;
    if (m_store.unitTable().count(code) != 0) {
        return; // the parameters with this code have the standard's unit
    }
    const QString& name = unit->second.name;
    eachParameter(m_profile, [this, code, &name](const ProfileParameter& parameter) {
        if (parameter.puc == code) {
            m_unitUsers.ofCode.insert(parameter.serial);
            if (parameter.pun == name) {
                m_unitUsers.ofName.insert(parameter.serial);
            }
        }
    });
}

ProfileEdit::UnitUsers& ProfileEdit::usersOfUnit(std::uint32_t code)
{
    const auto unit = m_profile.userUnits.find(code);
    if (unit == m_profile.userUnits.end() || m_unitUsers.unit != unit->second.serial) {
        holdUnit(code);
    }
    return m_unitUsers;
}

void ProfileEdit::setUnitName(ProfileParameter& parameter, const QString& name)
{
    parameter.pun = name;
    parameter.unitLabel = name; // what XML profiles keep
}

bool ProfileEdit::renameEnumeration(const QString& from, const QString& to)
{
    if (m_store.dataTypeNames().count(to) != 0) {
        return false;
    }
    ProfileEnum* moved = move(m_profile.enums, from, to);
    if (moved == nullptr) {
        return false;
    }
    moved->name = to;
    const std::int32_t enumId = moved->enumId;
    // By the id, too: a parameter may have named nothing until now.
    eachParameter(m_profile, [&](ProfileParameter& parameter) {
        if (parameter.enumId == enumId && parameter.typeName == from) {
            parameter.typeName = to;
        }
    });
    return true;
}

bool ProfileEdit::setEnumValue(const QString& enumName, std::int32_t from, std::int32_t to)
{
    const auto enumeration = m_profile.enums.find(enumName);
    if (enumeration == m_profile.enums.end()) {
        return false;
    }
    ProfileEnumValue* moved = move(enumeration->second.values, from, to);
    if (moved == nullptr) {
        return false;
    }
    moved->value = to;
    return true;
}

bool ProfileEdit::moveChapter(std::uint32_t from, std::uint32_t to)
{
    if (m_profile.fids.count(from) == 0) {
        return false;
    }
    if (from == to) {
        return renameChapter(from);
    }
    m_profile.fids.erase(to);
    ProfileFidGroup* moved = move(m_profile.fids, from, to);
    if (moved == nullptr) {
        return false;
    }
    moved->fid = to;
    moved->name = zul::groupName(m_store, m_profile, to);
    for (auto& [serial, parameter] : moved->parameters) {
        parameter.fid = to;
    }
    return true;
}

bool ProfileEdit::renameChapter(std::uint32_t fid)
{
    const auto group = m_profile.fids.find(fid);
    const auto label = m_store.currentFidTable().find(fid);
    if (group == m_profile.fids.end() || label == m_store.currentFidTable().end() ||
        label->second != QLatin1String(zul::reservedFid)) {
        return false;
    }
    const QString name = zul::groupName(m_store, m_profile, fid);
    return std::exchange(group->second.name, name) != name;
}

void ProfileEdit::adoptParameters(const QString& enumName)
{
    const auto enumeration = m_profile.enums.find(enumName);
    if (enumeration == m_profile.enums.end() || m_store.dataTypeNames().count(enumName) != 0) {
        return;
    }
    eachParameter(m_profile, [&](ProfileParameter& parameter) {
        if (parameter.typeName == enumName) {
            zul::resolveDataType(m_store, m_profile, enumName, parameter);
        }
    });
}

void ProfileEdit::setDoc(ProfileParameter& parameter, std::uint32_t doc) const
{
    parameter.doc = doc;
    if (isText()) {
        parameter.dfid = zul::dfidOfNid(doc);
    }
}

void ProfileEdit::setServerFid(ProfileParameter& parameter, std::uint32_t fid)
{
    parameter.dfid = fid;
    parameter.doc = zul::nidOfDfid(parameter.doc, fid);
}

void ProfileEdit::setUnit(ProfileParameter& parameter, std::uint32_t code)
{
    const auto standard = m_store.unitTable().find(code);
    const auto user = m_profile.userUnits.find(code);
    const bool isUsers = standard == m_store.unitTable().end();
    if (isUsers && user == m_profile.userUnits.end()) {
        return;
    }
    m_unitUsers.ofCode.erase(parameter.serial);
    m_unitUsers.ofName.erase(parameter.serial);
    if (isUsers && m_unitUsers.unit == user->second.serial) {
        m_unitUsers.ofCode.insert(parameter.serial);
        m_unitUsers.ofName.insert(parameter.serial);
    }
    parameter.puc = code;
    setUnitName(parameter, isUsers ? user->second.name : standard->second);
}

bool ProfileEdit::isText() const
{
    return &m_store.currentFidTable() == &m_store.fidTable825Part2();
}

std::uint32_t ProfileEdit::maxSid() const
{
    return isText() ? zul::ProfileChecks::maxTextSid : zul::ProfileChecks::maxXmlSid;
}

void ProfileEdit::setDataType(ProfileParameter& parameter, int choice) const
{
    if (choice >= 0) {
        const auto type = static_cast<std::size_t>(choice);
        if (type < zul::arincTypes.size()) {
            zul::resolveDataType(m_store, m_profile, QLatin1String(zul::arincTypes.at(type).name),
                                 parameter);
        }
        return;
    }
    for (const auto& [name, enumeration] : m_profile.enums) {
        if (enumeration.enumId == -static_cast<std::int64_t>(choice)) {
            zul::resolveDataType(m_store, m_profile, name, parameter);
            return;
        }
    }
}
