#pragma once

#include "profile/ProfileParameter.h"
#include "profile/Serial.h"

#include <QString>

#include <cstdint>
#include <map>

/// One value of an enumeration and its label.
struct ProfileEnumValue
{
    std::int32_t value = 0;
    QString label;
    std::uint32_t serial = zul::nextSerial();
};

/// An enumeration that a profile defines; its name serves as a data type name.
struct ProfileEnum
{
    std::int32_t enumId = 0; ///< unique among all loaded profiles, from 1 on
    QString name;
    std::map<std::int32_t, ProfileEnumValue> values; ///< by value
    std::uint32_t serial = zul::nextSerial();
};

/// A function code that a profile defines at a place that the standard leaves free.
struct ProfileUserFid
{
    std::uint32_t code = 0;
    QString name;
    QString comment;
    std::uint32_t serial = zul::nextSerial();
};

/// A unit that a profile defines.
struct ProfileUserUnit
{
    std::uint32_t code = 0;
    QString name;
    QString comment;
    QString acronym;
    std::uint32_t serial = zul::nextSerial();
};

/// The parameters of one function code, or of one chapter of a ZORB profile.
struct ProfileFidGroup
{
    std::uint32_t fid = 0; ///< function code; of a chapter its running number
    QString name;          ///< label of the function code, or name of the chapter
    std::map<std::uint32_t, ProfileParameter> parameters; ///< by serial: in order of creation
    std::uint32_t serial = zul::nextSerial();
};

/// One loaded profile.
struct ArincProfile
{
    QString header; ///< free text, each line with its line feed; text form only
    QString name;
    QString comment; ///< XML only
    std::uint32_t id = 0;
    std::uint32_t subId = 0;
    std::map<std::uint32_t, ProfileFidGroup> fids; ///< by function code
    std::map<QString, ProfileEnum> enums;          ///< by name
    std::map<std::uint32_t, ProfileUserFid> userFids;
    std::map<std::uint32_t, ProfileUserUnit> userUnits;
    QString fileName;  ///< as given to the reader
    bool valid = true; ///< false once anything was reported; the profile stays usable
    QString result;    ///< report of the load, as HTML

    /// Forgets header, parameters, enumerations and user codes.
    void clearContent()
    {
        header.clear();
        fids.clear();
        enums.clear();
        userFids.clear();
        userUnits.clear();
    }
};

/// A CANaerospace profile: name, chapters and file name are filled, nothing else.
using ZorbProfile = ArincProfile;
using ZorbChapter = ProfileFidGroup;
