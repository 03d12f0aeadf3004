#pragma once

#include "profile/ArincProfile.h"
#include "profile/StandardTables.h"

#include <QString>

#include <cstdint>
#include <map>

/// All loaded profiles, the standard tables, and the index from identifier to parameter. Everything
/// here runs on the main thread.
///
/// Profiles are named by their files' content. A load never stops at an error: what is wrong stands
/// in the report of the profile, which stays usable.
class ProfileStore
{
public:
    using Profiles = std::map<QString, ArincProfile>;    ///< by name
    using ZorbProfiles = std::map<QString, ZorbProfile>; ///< by name
    /// By identifier as composed by the readers; several parameters may lie in one frame.
    using ParameterIndex = std::multimap<std::uint32_t, ProfileParameter>;
    using NameTable = std::map<QString, std::uint32_t>;

    /// The one of the process.
    static ProfileStore& instance();

    ProfileStore();
    ProfileStore(const ProfileStore&) = delete;
    ProfileStore& operator=(const ProfileStore&) = delete;

    /// Forgets all profiles and reads those of the working directory and, if "ZUL_HOME" is set, of
    /// "bin" below it and of itself, by the suffixes of the settings.
    ///
    /// Deliberate: files are opened by their bare names, so those of the other directories are read
    /// only if the working directory has files of these names too.
    void loadAll();
    /// Reads one XML profile, which replaces one of its name and what that had in the index. False
    /// if the file is not XML or no reader takes it; a text profile is not XML.
    bool loadFile(const QString& path);
    /// Forgets all profiles, their enumerations, the parameter index, and what checks found.
    void unloadAll();
    /// Holds the profiles against each other. `report` becomes the text of everything that was
    /// found since the last load, by earlier checks too; the result tells whether that is nothing.
    bool checkAll(QString& report);

    /// Reads a profile in the form that the setting "ArincProfileVersion" chooses and adds its
    /// parameters to the index; the profile itself is the caller's. False if the file cannot be
    /// opened or is no profile of that form.
    bool readProfile(const QString& path, ArincProfile& profile);
    /// Writes a profile in the form that the setting chooses. False if it is not in the file after
    /// that; an old file is then still there.
    [[nodiscard]] bool saveProfile(const QString& path, const ArincProfile& profile) const;
    /// The same, but a failure to save XML is not told.
    bool writeProfile(const QString& path, const ArincProfile& profile) const;

    const Profiles& profiles() const { return m_profiles; }
    const ZorbProfiles& zorbProfiles() const { return m_zorbProfiles; }
    const ParameterIndex& parameterIndex() const { return m_parameterIndex; }

    /// Adds a parameter under its identifier.
    void addToIndex(const ProfileParameter& parameter);
    /// Removes the parameters of a profile, by their serials.
    void removeFromIndex(const ArincProfile& profile);

    /// The function codes of the chosen version of the standard.
    const zul::CodeTable& currentFidTable() const;
    const zul::CodeTable& fidTable825Part2() const { return m_fidTable825Part2; }
    const zul::CodeTable& fidTable825Part3() const { return m_fidTable825Part3; }
    const zul::CodeTable& unitTable() const { return m_unitTable; }
    /// Channels that the parameters of a profile may have.
    const NameTable& lccNames() const { return m_lccNames; }
    const zul::CodeTable& lccCodes() const { return m_lccCodes; }
    /// ARINC 825 data types.
    const NameTable& dataTypeNames() const { return m_dataTypeNames; }
    const NameTable& canAerospaceTypeNames() const { return m_canAerospaceTypeNames; }
    const zul::CodeTable& canAerospaceTypeCodes() const { return m_canAerospaceTypeCodes; }
    /// The code of a CANaerospace data type. An unknown name is entered with the code 0, that of
    /// "AS_NODATA".
    std::uint32_t canAerospaceTypeCode(const QString& name);

    /// Such as "2: Running"; "Unknown ENUM Type" for an unknown id, "7: Invalid ENUM Value" for an
    /// unknown value.
    QString enumText(std::int32_t enumId, std::int32_t value) const;
    /// The enumerations of all profiles, by id.
    const std::map<std::int32_t, ProfileEnum>& enumerations() const { return m_enumerations; }
    /// Adds an enumeration under its id; the next load forgets it.
    void addEnumeration(const ProfileEnum& enumeration);
    /// A fresh id for an enumeration.
    std::int32_t nextEnumId() { return m_nextEnumId++; }

private:
    void rebuildFidTables();
    void loadDirectory(const QString& directory, const QString& arincSuffix,
                       const QString& zorbSuffix);
    void loadArincProfile(const QString& fileName);
    void loadZorbProfile(const QString& fileName);
    void replaceProfile(ArincProfile profile);
    void collectEnumerations();

    Profiles m_profiles;
    ZorbProfiles m_zorbProfiles;
    NameTable m_lccNames;
    zul::CodeTable m_lccCodes;
    zul::CodeTable m_fidTable825Part2;
    zul::CodeTable m_fidTable825Part3;
    NameTable m_dataTypeNames;
    zul::CodeTable m_unitTable;
    NameTable m_canAerospaceTypeNames;
    zul::CodeTable m_canAerospaceTypeCodes;
    std::map<std::int32_t, ProfileEnum> m_enumerations; ///< by id
    ParameterIndex m_parameterIndex;
    std::int32_t m_nextEnumId = 1;
    bool m_allValid = true;
    QString m_checkResult;
};
