#include "profile/ProfileChecks.h"

#include "profile/Arinc825Id.h"
#include "profile/ComposedId.h"
#include "profile/DataTypes.h"
#include "profile/ProfileNumbers.h"
#include "profile/ProfileStore.h"

namespace zul {

namespace {

constexpr std::uint32_t maxFid = fidCount - 1;
constexpr std::int32_t unknownEnumId = -1;

} // namespace

ProfileChecks::ProfileChecks(ProfileStore& store, const CodeTable& fidTable, ArincProfile& profile,
                             ProfileReport& report)
    : m_store(store), m_fidTable(fidTable), m_profile(profile), m_report(report)
{
}

void checkProfileName(const QString& name, int line, ProfileReport& report)
{
    if (name.size() > maxProfileTextLength) {
        report.warning(line, "Profile name has more than 255 characters");
    }
}

bool resolveDataType(const ProfileStore& store, const ArincProfile& profile, const QString& name,
                     ProfileParameter& parameter)
{
    const auto type = store.dataTypeNames().find(name);
    if (type != store.dataTypeNames().end()) {
        parameter.typeName = type->first; // one text for all parameters
        parameter.dtc = type->second;
        parameter.enumId = 0;
        return true;
    }
    parameter.typeName = name;
    parameter.dtc = static_cast<std::uint32_t>(ArincType::Enum);
    const auto enumeration = profile.enums.find(name);
    const bool isFound = enumeration != profile.enums.end();
    parameter.enumId = isFound ? enumeration->second.enumId : unknownEnumId;
    return isFound;
}

void ProfileChecks::checkProfileName(int line)
{
    zul::checkProfileName(m_profile.name, line, m_report);
}

void ProfileChecks::checkProfileIds(int line)
{
    if (m_profile.id > maxProfileId) {
        m_report.error(line, "Profile Id %d out of range [0..65535]", asSigned(m_profile.id));
    }
    if (m_profile.subId > maxProfileId) {
        m_report.error(line, "Profile Sub-Id %d out of range [0..65535]",
                       asSigned(m_profile.subId));
    }
}

bool ProfileChecks::isReserved(const CodeTable& table, std::uint32_t fid) const
{
    const auto found = table.find(fid);
    return found != table.end() && found->second == QLatin1String(reservedFid);
}

void ProfileChecks::addUserFid(int line, const ProfileUserFid& userFid)
{
    const int code = asSigned(userFid.code);
    if (!m_profile.userFids.emplace(userFid.code, userFid).second) {
        m_report.error(line, "User FID %d (%s) exists already ", code,
                       reportText(userFid.name).constData());
    }
    const CodeTable& table = m_store.fidTable825Part2();
    if (userFid.code > maxFid) {
        m_report.error(line, "User FID %d (%s) invalid. Range must be in [0..127]", code,
                       reportText(userFid.name).constData());
    } else if (!isReserved(table, userFid.code)) {
        m_report.error(line, "User FID %d (%s) conflicts with standard FID %d (%s)", code,
                       reportText(userFid.name).constData(), code,
                       reportText(table.at(userFid.code)).constData());
    }
}

void ProfileChecks::addUserUnit(int line, const ProfileUserUnit& userUnit)
{
    const int code = asSigned(userUnit.code);
    if (!m_profile.userUnits.emplace(userUnit.code, userUnit).second) {
        m_report.error(line, "User Unit %d (%s) already exists", code,
                       reportText(userUnit.name).constData());
    }
    if (userUnit.code < minUserUnit || userUnit.code > maxPuc) {
        m_report.error(line, "User Unit %d (%s) invalid. Range must be in [100..999]", code,
                       reportText(userUnit.name).constData());
    }
}

void ProfileChecks::addEnumValue(int line, ProfileEnum& enumeration, std::int32_t value,
                                 const QString& label)
{
    if (enumeration.values.count(value) != 0) {
        m_report.error(line, "Enumeration Value %d (%s) already exists", value,
                       reportText(label).constData());
    }
    ProfileEnumValue entry;
    entry.value = value;
    entry.label = label;
    enumeration.values.insert_or_assign(value, entry);
}

void ProfileChecks::setChannel(int line, const QString& name, ProfileParameter& parameter)
{
    const auto found = m_store.lccNames().find(name);
    if (found != m_store.lccNames().end()) {
        parameter.lcc = found->second;
        return;
    }
    m_report.error(line, "wrong LCC identifier %s. Valid LCCs are EEC, NOC, NSC, UDC, TMC or FMC.",
                   reportText(name).constData());
}

void ProfileChecks::checkFid(int line, const ProfileParameter& parameter)
{
    const std::uint32_t fid = parameter.fid;
    if (fid > maxFid) {
        m_report.error(line, "FID %d invalid. Range must be in [0..127]", asSigned(fid));
    } else if (isReserved(m_fidTable, fid) && m_profile.userFids.count(fid) == 0) {
        m_report.error(line, "FID %d not defined. Define a User FID or use a standard FID",
                       asSigned(fid));
    }
}

void ProfileChecks::checkDoc(int line, const ProfileParameter& parameter)
{
    if (!hasDoc(parameter.lcc)) {
        if (parameter.doc > maxNid) {
            m_report.error(line, "NID %d out of range. Range must be in [0..65535]",
                           asSigned(parameter.doc));
        }
    } else if (parameter.doc > arinc825::maxDocEntry) {
        m_report.error(line, "DOC %d out of range. Range must be in [0..16384]",
                       asSigned(parameter.doc));
    }
}

void ProfileChecks::checkDfid(int line, const ProfileParameter& parameter)
{
    if (parameter.dfid > maxFid) {
        m_report.error(line, "DFID %d out of range. Range must be in [0..127]",
                       asSigned(parameter.dfid));
    }
}

void ProfileChecks::checkLclPvt(int line, const ProfileParameter& parameter)
{
    if (parameter.lcl > 1) {
        m_report.error(line, "LCL %d out of range. Range must be in [0..1]",
                       asSigned(parameter.lcl));
    }
    if (parameter.pvt > 1) {
        m_report.error(line, "PVT %d out of range. Range must be in [0..1]",
                       asSigned(parameter.pvt));
    }
}

void ProfileChecks::checkSid(int line, const ProfileParameter& parameter, std::uint32_t max)
{
    if (parameter.sid > max) {
        m_report.error(line, "SID %d out of range. Range must be in [0..%d]",
                       asSigned(parameter.sid), asSigned(max));
    }
}

void ProfileChecks::setDataType(int line, const QString& name, ProfileParameter& parameter)
{
    if (!resolveDataType(m_store, m_profile, name, parameter)) {
        m_report.error(line, "Invalid DTN %s", reportText(name).constData());
    }
}

void ProfileChecks::checkPuc(int line, const ProfileParameter& parameter)
{
    if (parameter.puc > maxPuc) {
        m_report.error(line, "PUC %d out of range. Range must be in [0..999]",
                       asSigned(parameter.puc));
    } else if (m_store.unitTable().count(parameter.puc) == 0 &&
               m_profile.userUnits.count(parameter.puc) == 0) {
        m_report.error(line, "PUC %d not defined. Define a User Unit or use a standard unit",
                       asSigned(parameter.puc));
    }
}

void ProfileChecks::checkNme(int line, const ProfileParameter& parameter)
{
    if (parameter.nme.size() > maxProfileTextLength) {
        m_report.warning(line, "NME has more than 255 characters");
    }
}

void ProfileChecks::checkPun(int line, const ProfileParameter& parameter)
{
    if (parameter.pun.size() > maxProfileTextLength) {
        m_report.warning(line, "PUN has more than 255 characters");
    }
}

void ProfileChecks::checkRange(int line, const ProfileParameter& parameter)
{
    if (parameter.min > parameter.max) {
        m_report.warning(line, "MIN greater MAX");
    }
}

void ProfileChecks::checkUpr(int line, const ProfileParameter& parameter)
{
    if (parameter.upr < 0) {
        m_report.error(line, "UPR invalid value");
    }
}

void ProfileChecks::checkLat(int line, const ProfileParameter& parameter)
{
    if (parameter.lat < 0.0) {
        m_report.error(line, "LAT invalid value");
    }
}

void ProfileChecks::checkRci(int line, const ProfileParameter& parameter)
{
    if (parameter.rci > maxRci) {
        m_report.error(line, "RCI invalid value");
    }
}

void ProfileChecks::checkNotes(int line, const ProfileParameter& parameter)
{
    if (parameter.notes.size() > maxProfileTextLength) {
        m_report.warning(line, "NTS has more than 255 characters");
    }
}

void ProfileChecks::file(int line, const ProfileParameter& parameter)
{
    if (const std::optional<int> earlier = m_overlaps.mark(parameter, line)) {
        m_report.warning(line, "Bits of parameter in line %d conflicts with parameter in line %d",
                         *earlier, line);
    }
    auto& parameters = group(parameter.fid).parameters;
    parameters.emplace_hint(parameters.end(), parameter.serial, parameter);
    m_store.addToIndex(parameter);
}

ProfileFidGroup& ProfileChecks::group(std::uint32_t fid)
{
    const auto found = m_profile.fids.find(fid);
    if (found != m_profile.fids.end()) {
        return found->second;
    }
    ProfileFidGroup& made = m_profile.fids[fid];
    made.fid = fid;
    const auto label = m_fidTable.find(fid);
    const auto user = m_profile.userFids.find(fid);
    if (user != m_profile.userFids.end() && isReserved(m_fidTable, fid)) {
        made.name = user->second.name;
    } else if (label != m_fidTable.end()) {
        made.name = label->second;
    }
    return made;
}

} // namespace zul
