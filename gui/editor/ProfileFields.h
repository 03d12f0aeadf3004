#pragma once

#include "gui/editor/EditorForm.h"
#include "profile/Arinc825Id.h"
#include "profile/ProfileChecks.h"
#include "profile/StandardTables.h"

#include <array>
#include <cstddef>
#include <limits>

namespace gui {

// The pages of the editor of text profiles, as tables.

/// What an item of the tree stands for: a page each. The fixed items have no number or name of
/// their own.
enum class ProfileItem {
    Header,
    ProfileInfo,
    UserFids,
    UserFid,
    UserUnits,
    UserUnit,
    Enumerations,
    Enumeration,
    EnumValue,
    Chapters,
    Chapter,
    Parameter
};

namespace profileField {

// Names of the controls.
inline constexpr const char* header = "header";
inline constexpr const char* profileName = "profileName";
inline constexpr const char* profileId = "profileId";
inline constexpr const char* profileSubId = "profileSubId";
inline constexpr const char* fidName = "fidName";
inline constexpr const char* fidValue = "fidValue";
inline constexpr const char* unitName = "unitName";
inline constexpr const char* unitValue = "unitValue";
inline constexpr const char* enumName = "enumName";
inline constexpr const char* enumValue = "enumValue";
inline constexpr const char* enumString = "enumString";
inline constexpr const char* chapterFid = "chapterFid";
inline constexpr const char* nme = "nme";
inline constexpr const char* lcc = "lcc";
inline constexpr const char* doc = "doc"; ///< the first field: DOC, or function code of the server
inline constexpr const char* sid = "sid"; ///< the second field
inline constexpr const char* lcl = "lcl";
inline constexpr const char* pvt = "pvt";
inline constexpr const char* spp = "spp"; ///< controls "sppByte" and "sppBit"
inline constexpr const char* sppByte = "sppByte";
inline constexpr const char* sppBit = "sppBit";
inline constexpr const char* epp = "epp"; ///< controls "eppByte" and "eppBit"
inline constexpr const char* eppByte = "eppByte";
inline constexpr const char* eppBit = "eppBit";
inline constexpr const char* pua = "pua";
inline constexpr const char* dtn = "dtn";
inline constexpr const char* min = "min";
inline constexpr const char* max = "max";
inline constexpr const char* upr = "upr";
inline constexpr const char* lat = "lat";
inline constexpr const char* rci = "rci";
inline constexpr const char* notes = "notes";

constexpr int number(std::uint32_t limit)
{
    return static_cast<int>(limit);
}

constexpr EditorField line(const char* name, const char* label, const char* toolTip = "")
{
    return {FieldKind::Line, name, label, toolTip};
}

constexpr EditorField choice(const char* name, const char* label, const char* toolTip = "")
{
    return {FieldKind::Choice, name, label, toolTip};
}

} // namespace profileField

inline constexpr std::array<EditorField, 1> headerFields{{
    {FieldKind::Text, profileField::header, "Text :", "Free text, kept by text profiles only"},
}};

inline constexpr std::array<EditorField, 3> profileInfoFields{{
    profileField::line(profileField::profileName, "Name :"),
    {FieldKind::Number, profileField::profileId, "Profile ID :", "", 0,
     profileField::number(zul::ProfileChecks::maxProfileId)},
    {FieldKind::Number, profileField::profileSubId, "Profile Sub-ID :", "", 0,
     profileField::number(zul::ProfileChecks::maxProfileId)},
}};

inline constexpr std::array<EditorField, 2> userFidFields{{
    profileField::line(profileField::fidName, "Name :"),
    {FieldKind::Number, profileField::fidValue, "Code :",
     "Function code that the standard leaves free", 0, profileField::number(zul::fidCount - 1)},
}};

inline constexpr std::array<EditorField, 2> userUnitFields{{
    profileField::line(profileField::unitName, "Name :"),
    {FieldKind::Number, profileField::unitValue, "Code :", "The parameters with this unit follow",
     profileField::number(zul::ProfileChecks::minUserUnit),
     profileField::number(zul::ProfileChecks::maxPuc)},
}};

inline constexpr std::array<EditorField, 1> enumerationFields{{
    profileField::line(profileField::enumName,
                       "Name :", "Also a data type of parameters, which follow"),
}};

inline constexpr std::array<EditorField, 2> enumValueFields{{
    {FieldKind::Number, profileField::enumValue, "Value :", "", std::numeric_limits<int>::min(),
     std::numeric_limits<int>::max()},
    profileField::line(profileField::enumString, "Label :"),
}};

inline constexpr std::array<EditorField, 1> chapterFields{{
    profileField::choice(profileField::chapterFid, "FID :",
                         "Function code of all parameters of the chapter. It takes the place of "
                         "the chapter that has the code now."),
}};

/// The first field on channels with a server, and on all others.
inline constexpr EditorField serverField{FieldKind::Number,
                                         profileField::doc,
                                         "FID/SID :",
                                         "Destination Function Identifier\nServer Id",
                                         0,
                                         profileField::number(zul::fidCount - 1)};
inline constexpr EditorField docField{FieldKind::Number,
                                      profileField::doc,
                                      "DOC :",
                                      "Data Object Code",
                                      0,
                                      profileField::number(zul::arinc825::maxDocEntry)};
/// The same on channels without a DOC, where text profiles have a NID in its place.
inline constexpr EditorField nidField{FieldKind::Number,
                                      profileField::doc,
                                      docField.label,
                                      docField.toolTip,
                                      0,
                                      profileField::number(zul::ProfileChecks::maxNid)};
/// The second field. XML profiles may have higher numbers there than text profiles.
inline constexpr EditorField sidField{FieldKind::Number,
                                      profileField::sid,
                                      "",
                                      "Server Id",
                                      0,
                                      profileField::number(zul::ProfileChecks::maxXmlSid),
                                      "",
                                      "",
                                      true};

inline constexpr int lastPosition = 7; ///< of a byte in a frame, and of a bit in a byte

inline constexpr std::array<EditorField, 16> parameterFields{{
    profileField::line(profileField::nme, "Name :"),
    profileField::choice(profileField::lcc, "LCC :", "Logical Communication Channel"),
    docField,
    sidField,
    {FieldKind::Check, profileField::lcl, "LCL :", "", 0, 0, "",
     zul::arinc825::names::localDataBit},
    {FieldKind::Check, profileField::pvt, "", "", 0, 0, "", zul::arinc825::names::privateDataBit,
     true},
    {FieldKind::Position, profileField::spp, "SPP Byte/Bit :", "Start Position Payload", 0,
     lastPosition},
    {FieldKind::Position, profileField::epp, "EPP Byte/Bit :", "End Position Payload", 0,
     lastPosition},
    profileField::choice(profileField::pua, "Unit :"),
    profileField::choice(profileField::dtn, "Data Type :"),
    profileField::line(profileField::min, "Minimum :"),
    profileField::line(profileField::max, "Maximum :"),
    {FieldKind::Number, profileField::upr, "Update Period :", "", 0,
     std::numeric_limits<int>::max(), " ms"},
    profileField::line(profileField::lat, "Latency :", "Kept by XML profiles only"),
    profileField::choice(profileField::rci,
                         "RCI :", "Redundancy Channel Identifier\nKept by XML profiles only"),
    profileField::line(profileField::notes, "Notes :"),
}};

/// A page, and what can be done while it is shown.
struct ProfilePage
{
    ProfileItem item; ///< the row's index
    const char* title;
    const EditorField* fields;
    std::size_t fieldCount;
    const char* addText;    ///< of the button
    const char* deleteText; ///< of the button
    bool canAdd;
    bool canDelete;
    const char* iconName;
};

// clang-format off
inline constexpr std::array<ProfilePage, 12> profilePages{{
    {ProfileItem::Header, "Header", headerFields.data(), headerFields.size(), "Add", "Delete", false, false, "profile"},
    {ProfileItem::ProfileInfo, "Profile Info", profileInfoFields.data(), profileInfoFields.size(), "Add", "Delete", false, false, "profile"},
    {ProfileItem::UserFids, "User FIDs", nullptr, 0, "Add FID", "Delete FID", true, false, "group"},
    {ProfileItem::UserFid, "User FID", userFidFields.data(), userFidFields.size(), "Add FID", "Delete FID", true, true, "enum-entry"},
    {ProfileItem::UserUnits, "User Units", nullptr, 0, "Add Unit", "Delete Unit", true, false, "group"},
    {ProfileItem::UserUnit, "User Unit", userUnitFields.data(), userUnitFields.size(), "Add Unit", "Delete Unit", true, true, "enum-entry"},
    {ProfileItem::Enumerations, "Enumerations", nullptr, 0, "Add Enumeration", "Delete Enumeration", true, false, "group"},
    {ProfileItem::Enumeration, "Enumeration", enumerationFields.data(), enumerationFields.size(), "Add Value", "Delete Enumeration", true, true, "group"},
    {ProfileItem::EnumValue, "Value", enumValueFields.data(), enumValueFields.size(), "Add Value", "Delete Value", true, true, "enum-entry"},
    {ProfileItem::Chapters, "Parameter", nullptr, 0, "Add Parameter", "Delete Parameter", true, false, "group"},
    {ProfileItem::Chapter, "Chapter", chapterFields.data(), chapterFields.size(), "Add Parameter", "Delete Parameter", true, true, "group"},
    {ProfileItem::Parameter, "Parameter", parameterFields.data(), parameterFields.size(), "Add Parameter", "Delete Parameter", true, true, "parameter"},
}};
// clang-format on

constexpr const ProfilePage& profilePage(ProfileItem item)
{
    return profilePages.at(static_cast<std::size_t>(item));
}

} // namespace gui
