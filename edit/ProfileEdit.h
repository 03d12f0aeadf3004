#pragma once

#include "profile/ArincProfile.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <set>

class ProfileStore;

/// The profile that a user edits, and all that changes more of it than one field of a record.
///
/// The profile is the editor's alone: nothing of it is in the store. Nothing is checked beyond what
/// would lose a record: what is wrong is told by the readers when the file is loaded.
class ProfileEdit
{
public:
    static constexpr const char* newProfileName = "NoName";

    /// The store is the caller's and outlives the object. The profile is a new one.
    explicit ProfileEdit(ProfileStore& store);

    const ArincProfile& profile() const { return m_profile; }
    ArincProfile& profile() { return m_profile; }

    /// Starts a new profile.
    void clear();
    /// Replaces the profile by that of a file, in the form that the setting "ArincProfileVersion"
    /// chooses. False if the file cannot be opened, is no profile of that form, or has bytes but
    /// nothing of a profile, so that saving would write over something else; the profile then
    /// stays. One with errors is taken all the same.
    [[nodiscard]] bool read(const QString& path);
    /// Writes the profile in the form that the setting chooses. False if the file cannot be
    /// written.
    [[nodiscard]] bool write(const QString& path) const;

    // New records get the first code that is free; the result is that code, and empty if all are
    // taken.

    /// A function code that the standard leaves free and the profile does not have yet.
    std::optional<std::uint32_t> addUserFid();
    std::optional<std::uint32_t> addUserUnit();
    /// The name of the new enumeration.
    QString addEnumeration();
    /// The new value; empty also if there is no enumeration of that name, or it is the one that
    /// stands for no selection.
    std::optional<std::int32_t> addEnumValue(const QString& enumName);
    /// The function code of a new, empty group.
    std::optional<std::uint32_t> addChapter();
    /// The serial of a new parameter in the group; empty if there is no such group.
    std::optional<std::uint32_t> addParameter(std::uint32_t fid);

    // Other codes. A code that another record has is refused: the result is false, and both stay.

    bool setUserFidCode(std::uint32_t from, std::uint32_t to);
    /// The parameters of the unit that is held follow: not those that have a code on its way.
    bool setUserUnitCode(std::uint32_t from, std::uint32_t to);
    /// The parameters of this enumeration follow. The name of a data type is refused, too: readers
    /// would take that data type.
    bool renameEnumeration(const QString& from, const QString& to);
    bool setEnumValue(const QString& enumName, std::int32_t from, std::int32_t to);

    /// Holds a user unit, of which there is one at a time: its parameters are those that have its
    /// code now, or are given it by `setUnit` while it is held. None if the code is the standard's.
    /// What changes a unit that is not held holds it first.
    void holdUnit(std::uint32_t code);
    /// The parameters that had the old name follow, too; the result is their serials.
    std::set<std::uint32_t> renameUserUnit(std::uint32_t code, const QString& name);

    /// Moves a group with its parameters to another function code, whose group it replaces. False
    /// if there is no such group, or nothing changes.
    ///
    /// Deliberate: the identifiers of the parameters stay; they are composed when the file is read.
    bool moveChapter(std::uint32_t from, std::uint32_t to);
    /// Gives the group of a function code that the standard leaves free the name that it has now,
    /// which is that of the user FID. False if nothing changes.
    bool renameChapter(std::uint32_t fid);
    /// Makes the parameters that have the name of this enumeration as their data type its
    /// parameters: a reader would find it now.
    void adoptParameters(const QString& enumName);

    // Fields of a parameter that depend on each other.

    /// The DOC, or on channels that have none the NID. In text profiles, the server's function code
    /// is a part of it; XML profiles keep that by itself, and no DOC on such channels.
    void setDoc(ProfileParameter& parameter, std::uint32_t doc) const;
    /// The server's function code, which text profiles keep in the NID and XML profiles apart.
    static void setServerFid(ProfileParameter& parameter, std::uint32_t fid);
    /// Code and name of a unit. An unknown code changes nothing.
    void setUnit(ProfileParameter& parameter, std::uint32_t code);
    /// The highest SID that the chosen form of profiles may have.
    std::uint32_t maxSid() const;
    /// `choice` is one of `zul::dataTypeChoices`; another changes nothing.
    void setDataType(ProfileParameter& parameter, int choice) const;

private:
    /// The unit that is held, and serials of parameters.
    struct UnitUsers
    {
        std::optional<std::uint32_t> unit; ///< serial
        std::set<std::uint32_t> ofCode;
        std::set<std::uint32_t> ofName; ///< with its name as well as its code
    };

    UnitUsers& usersOfUnit(std::uint32_t code);
    static void setUnitName(ProfileParameter& parameter, const QString& name);
    bool isText() const;

    ProfileStore& m_store;
    ArincProfile m_profile;
    UnitUsers m_unitUsers;
};
