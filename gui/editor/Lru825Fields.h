#pragma once

#include "gui/editor/EditorForm.h"

#include <array>
#include <cstdint>
#include <limits>

/// The pages of the editor of LRU documents.
namespace gui::lru825 {

inline constexpr int highestNumber = std::numeric_limits<int>::max();
inline constexpr int lowestNumber = std::numeric_limits<int>::min();
inline constexpr int highestQuanta = 1024;
inline constexpr int highestDoc = 16384;
inline constexpr const char* redundancyChannel = "Redundancy Channel Identifier";
inline constexpr const char* functionIdentifier = "Function Identifier";
inline constexpr int highestPeriodMs = 10000;
inline constexpr int highestPort = 65535;
inline constexpr int highestShortId = 2047;
inline constexpr int highestDlc = 64;
inline constexpr int highestByte = 63;
inline constexpr const char* milliseconds = " ms";
inline constexpr const char* timeQuanta = " tq";

/// Texts of choices that are others than the names in the file; in the order in which they are
/// offered.
struct ChoiceText
{
    std::uint32_t code;
    const char* text;
};

inline constexpr std::array<ChoiceText, 5> bitRates{{
    {4, "1 MBit"},
    {3, "500 KBit"},
    {2, "250 KBit"},
    {1, "125 KBit"},
    // Deliberate: the file says "83.333"; users know the choice by this text.
    {0, "8.33 KBit"},
}};
inline constexpr std::array<ChoiceText, 2> samplingPoints{{{0, "Single"}, {1, "Triple"}}};

inline constexpr const char* addEnumText = "Add Enum";

// clang-format off
inline constexpr const char* headerTitle = "Profile Header";
inline constexpr std::array<EditorField, 6> headerFields{{
    {FieldKind::Line, "headerId", "Id"},
    {FieldKind::Line, "headerName", "Name"},
    {FieldKind::Number, "headerMajor", "Major", "", 0, highestNumber},
    {FieldKind::Number, "headerMinor", "Minor", "", 0, highestNumber},
    {FieldKind::Number, "headerVersion", "Version", "", 0, highestNumber},
    {FieldKind::Text, "headerComment", "Comment"},
}};

inline constexpr const char* lruTitle = "LRU";
inline constexpr std::array<EditorField, 4> lruFields{{
    {FieldKind::Line, "lruName", "Name"},
    {FieldKind::Line, "lruNodeId", "Node Id"},
    {FieldKind::Line, "lruNodeAddress", "Node Address"},
    {FieldKind::Text, "lruComment", "Comment"},
}};

inline constexpr const char* interfaceTitle = "CAN Interface";
inline constexpr std::array<EditorField, 11> interfaceFields{{
    {FieldKind::Line, "ifcName", "Name"},
    {FieldKind::Choice, "ifcBitrate", "Bit Rate"},
    {FieldKind::Choice, "ifcRci", "RCI", redundancyChannel},
    {FieldKind::Text, "ifcComment", "Comment"},
    {FieldKind::Number, "ifcTimeQuantum", "Time Quantum/Bit", "", 0, highestQuanta, timeQuanta},
    {FieldKind::Number, "ifcResync", "Resync Jump Width", "", 0, highestQuanta, timeQuanta},
    {FieldKind::Number, "ifcSyncSeg", "Sync Seg", "", 0, highestQuanta, timeQuanta},
    {FieldKind::Number, "ifcPropSeg", "Prop Seg", "", 0, highestQuanta, timeQuanta},
    {FieldKind::Number, "ifcPhaseSeg1", "Phase Seg 1", "", 0, highestQuanta, timeQuanta},
    {FieldKind::Number, "ifcPhaseSeg2", "Phase Seg 2", "", 0, highestQuanta, timeQuanta},
    {FieldKind::Choice, "ifcSamplingPoint", "Sampling Point"},
}};

inline constexpr const char* messageTitle = "Message";
inline constexpr std::array<EditorField, 14> messageFields{{
    {FieldKind::Line, "messageName", "Name"},
    {FieldKind::Choice, "messageIdType", "ID Type"},
    {FieldKind::Choice, "messageIdLength", "ID Length"},
    {FieldKind::Choice, "messageLcc", "LCC", "Logical Communication Channel"},
    {FieldKind::Choice, "messageFid", "FID", functionIdentifier},
    {FieldKind::Check, "messagePvt", "Private Bit"},
    {FieldKind::Check, "messageLcl", "LCL Bit", "Local Bus Only"},
    {FieldKind::Check, "messageFsb", "FSB Bit", "Functional Status Bit"},
    {FieldKind::Number, "messageDoc", "DOC", "Data Object Code", 0, highestDoc},
    {FieldKind::Number, "messageTxp", "TXP", "Transmit Period", 0, highestPeriodMs, milliseconds},
    {FieldKind::Number, "messageLatency", "Latency", "Maximum Latency", 0, highestPeriodMs, milliseconds},
    {FieldKind::Number, "messagePort", "Default Port", "", 0, highestPort},
    {FieldKind::Number, "messageId", "11 Bit Id", "", 0, highestShortId},
    {FieldKind::Choice, "messageFuncStatus", "Functional Status"},
}};

inline constexpr const char* dataFieldTitle = "Data Field";
inline constexpr std::array<EditorField, 4> dataFieldFields{{
    {FieldKind::Line, "dataFieldName", "Name"},
    {FieldKind::Line, "dataFieldPayload", "Payload Protocol"},
    {FieldKind::Number, "dataFieldDlc", "DLC", "Data Length", 0, highestDlc, " bytes"},
    {FieldKind::Check, "dataFieldIntegrity", "Integrity", "", 0, 0, "", "High Integrity"},
}};

inline constexpr const char* assignmentTitle = "Interface Assignment";
inline constexpr std::array<EditorField, 2> assignmentFields{{
    {FieldKind::Name, "assignmentName", "Interface"},
    {FieldKind::Choice, "assignmentRci", "RCI", redundancyChannel},
}};

inline constexpr const char* referenceTitle = "Parameter Assignment";
inline constexpr std::array<EditorField, 5> referenceFields{{
    {FieldKind::Name, "referenceName", "Parameter"},
    {FieldKind::Position, "spp", "SPP Byte/Bit :", "Start Position Payload", 0, highestByte},
    {FieldKind::Position, "epp", "EPP Byte/Bit :", "End Position Payload", 0, highestByte},
    {FieldKind::Position, "pvsSpp", "PVS SPP Byte/Bit :", "Start Position Status", 0, highestByte},
    {FieldKind::Position, "pvsEpp", "PVS EPP Byte/Bit :", "End Position Status", 0, highestByte},
}};

inline constexpr const char* parameterTitle = "Parameter";
inline constexpr std::array<EditorField, 10> parameterFields{{
    {FieldKind::Line, "parameterName", "Name"},
    {FieldKind::Suggest, "parameterPua", "Physical Unit"},
    {FieldKind::Choice, "parameterDtn", "Data Type"},
    {FieldKind::Real, "parameterMin", "Minimum"},
    {FieldKind::Real, "parameterMax", "Maximum"},
    {FieldKind::Real, "parameterResolution", "Resolution"},
    {FieldKind::Real, "parameterOffset", "Offset"},
    {FieldKind::Text, "parameterNotes", "Notes"},
    {FieldKind::Text, "parameterComment", "Comment"},
    {FieldKind::Choice, "parameterFid", "FID", functionIdentifier},
}};

inline constexpr const char* enumTitle = "Enum";
inline constexpr std::array<EditorField, 2> enumFields{{
    {FieldKind::Line, "enumKey", "Enum"},
    {FieldKind::Number, "enumValue", "Value", "", lowestNumber, highestNumber},
}};
// clang-format on

} // namespace gui::lru825
