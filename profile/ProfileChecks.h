#pragma once

#include "profile/ArincProfile.h"
#include "profile/OverlapCheck.h"
#include "profile/ProfileReport.h"
#include "profile/StandardTables.h"

#include <QString>
#include <QStringList>

class ProfileStore;

namespace zul {

/// Longest name, unit or note that passes without a warning, in characters.
inline constexpr int maxProfileTextLength = 255;

/// Deliberate: what is wrong with the root element of a document is reported without a line.
inline constexpr int lineOfRoot = -1;

/// Warns of the name of a profile or an LRU document that is too long.
void checkProfileName(const QString& name, int line, ProfileReport& report);

/// Sets `typeName`, and `dtc` and `enumId` by it. False if it is neither a data type nor an
/// enumeration of the profile.
bool resolveDataType(const ProfileStore& store, const ArincProfile& profile, const QString& name,
                     ProfileParameter& parameter);

/// The rules that the readers of ARINC 825 profiles hold every statement against, and the filing of
/// what they read. Every rule reports and goes on; nothing is rejected. The line is that of the
/// statement in its file.
///
/// Numbers are compared as unsigned, so that negative ones are out of range too, and shown as
/// signed.
class ProfileChecks
{
public:
    /// Highest service identifiers that the two forms accept.
    static constexpr std::uint32_t maxTextSid = 127;
    static constexpr std::uint32_t maxXmlSid = 511;
    // Highest and lowest numbers, both inclusive, that pass.
    static constexpr std::uint32_t maxProfileId = 65535; ///< of sub-ids, too
    static constexpr std::uint32_t maxNid = 65535;
    static constexpr std::uint32_t minUserUnit = 100;
    static constexpr std::uint32_t maxPuc = 999; ///< of user units, too
    static constexpr std::uint32_t maxRci = 3;

    /// `fidTable` is that of the version of the standard that the form belongs to. All belong to
    /// the caller and outlive the object.
    ProfileChecks(ProfileStore& store, const CodeTable& fidTable, ArincProfile& profile,
                  ProfileReport& report);

    void checkProfileName(int line);
    void checkProfileIds(int line);

    /// Adds the function code unless it is there, whatever its value.
    ///
    /// Deliberate: it is held against the codes of ARINC 825-2 in both forms.
    void addUserFid(int line, const ProfileUserFid& userFid);
    void addUserUnit(int line, const ProfileUserUnit& userUnit);
    /// The later one of two equal values stays.
    void addEnumValue(int line, ProfileEnum& enumeration, std::int32_t value, const QString& label);

    /// Sets `lcc`; an unknown channel leaves it.
    void setChannel(int line, const QString& name, ProfileParameter& parameter);
    void checkFid(int line, const ProfileParameter& parameter);
    /// DOC or NID, by the channel.
    void checkDoc(int line, const ProfileParameter& parameter);
    void checkDfid(int line, const ProfileParameter& parameter);
    void checkLclPvt(int line, const ProfileParameter& parameter);
    void checkSid(int line, const ProfileParameter& parameter, std::uint32_t max);
    /// Sets `typeName`, and `dtc` and `enumId` by it.
    void setDataType(int line, const QString& name, ProfileParameter& parameter);
    void checkPuc(int line, const ProfileParameter& parameter);
    void checkNme(int line, const ProfileParameter& parameter);
    void checkPun(int line, const ProfileParameter& parameter);
    void checkRange(int line, const ProfileParameter& parameter);
    void checkUpr(int line, const ProfileParameter& parameter);
    void checkLat(int line, const ProfileParameter& parameter);
    void checkRci(int line, const ProfileParameter& parameter);
    void checkNotes(int line, const ProfileParameter& parameter);

    /// Holds the parameter's bits against those of the other parameters of its identifier, and adds
    /// it to its group and to the store's index.
    void file(int line, const ProfileParameter& parameter);

private:
    bool isReserved(const CodeTable& table, std::uint32_t fid) const;
    ProfileFidGroup& group(std::uint32_t fid);

    ProfileStore& m_store;
    const CodeTable& m_fidTable;
    ArincProfile& m_profile;
    ProfileReport& m_report;
    OverlapCheck m_overlaps;
};

} // namespace zul
