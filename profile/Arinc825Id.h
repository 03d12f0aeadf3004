#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The 29-bit identifier of ARINC 825. Every value of 32 bits has a meaning here:
/// nothing fails, and bits above 28 are left alone.
namespace zul::arinc825 {

inline constexpr std::uint32_t maxExtendedId = 0x1fffffff;
inline constexpr std::uint32_t maxStandardId = 0x7ff;

/// A run of bits in the identifier.
struct IdField
{
    std::uint32_t shift; ///< of the lowest bit
    std::uint32_t width; ///< in bits, below 32

    /// The largest value that the field holds.
    constexpr std::uint32_t max() const { return (std::uint32_t{1} << width) - 1; }
    constexpr std::uint32_t mask() const { return max() << shift; }
    constexpr std::uint32_t get(std::uint32_t id) const { return (id >> shift) & max(); }
    /// `id` with the field set to the low bits of `value`, of a one-bit field 0 or 1; all other
    /// bits stay.
    [[nodiscard]] constexpr std::uint32_t set(std::uint32_t id, std::uint32_t value) const
    {
        return (id & ~mask()) | ((value & max()) << shift);
    }
};

/// Of every channel.
inline constexpr IdField lcc{26, 3}; ///< Logical Communication Channel
inline constexpr IdField rci{0, 2};  ///< Redundancy Channel Identifier

/// Data channels: EEC, NOC, UDC, FMC.
namespace data {
inline constexpr IdField sfid{19, 7}; ///< Source FID
inline constexpr IdField fsb{18, 1};  ///< Functional Status Bit
inline constexpr IdField lcl{17, 1};  ///< Local Data Bit
inline constexpr IdField pvt{16, 1};  ///< Private Data Bit
inline constexpr IdField doc{2, 14};  ///< Data Object Code
} // namespace data

/// Service channels: NSC, TMC.
namespace service {
inline constexpr IdField cfid{19, 7}; ///< Client FID
inline constexpr IdField smt{18, 1};  ///< Service Message Type
inline constexpr IdField lcl{17, 1};  ///< Local Bit
inline constexpr IdField pvt{16, 1};  ///< Private Bit
inline constexpr IdField sfid{9, 7};  ///< Server FID; DFID in a profile
inline constexpr IdField sid{2, 7};   ///< Service Identifier
} // namespace service

/// Directed channel: DMC.
namespace directed {
inline constexpr IdField sa{19, 7}; ///< Source Address
inline constexpr IdField da{12, 7}; ///< Destination Address
inline constexpr IdField sp{6, 6};  ///< Source Port
inline constexpr IdField dp{0, 6};  ///< Destination Port
} // namespace directed

/// How the bits below the channel are cut.
enum class Layout { None, Data, Service, Directed };

/// A logical communication channel.
struct Channel
{
    std::uint32_t lcc;
    const char* name;     ///< in tables, editors and text profiles
    const char* longName; ///< in LRU documents
    bool isInProfiles;    ///< a profile may have parameters on it
    Layout layout;
};

inline constexpr std::array<Channel, 8> channels{{
    {0, "EEC", "EEC", true, Layout::Data},
    {1, "RES", "RESERVED", false, Layout::None},
    {2, "NOC", "NOC", true, Layout::Data},
    {3, "DMC", "DMC", false, Layout::Directed},
    {4, "NSC", "NSC", true, Layout::Service},
    {5, "UDC", "UDC", true, Layout::Data},
    {6, "TMC", "TMC", true, Layout::Service},
    {7, "FMC", "FMC", true, Layout::Data},
}};

/// The channel of an identifier.
constexpr const Channel& channel(std::uint32_t id)
{
    return channels[lcc.get(id)];
}

/// The letter of the redundancy channel. On the directed channel, where the two bits belong to the
/// destination port, it is given all the same.
constexpr char rciLetter(std::uint32_t id)
{
    return "ABCD"[rci.get(id)];
}

/// The key under which the parameters of a received frame are found: FSB and RCI are cleared.
constexpr std::uint32_t parameterKey(std::uint32_t id)
{
    return id & ~(data::fsb.mask() | rci.mask());
}

/// Largest number that an entry of the DOC takes. Deliberate: one more than the field holds, so
/// that it gives DOC 0.
inline constexpr std::uint32_t maxDocEntry = 16384;

/// A buffer of this size holds every text that the functions below write, with the closing 0. In a
/// smaller one the text is cut, and still closed; in none nothing is written.
inline constexpr std::size_t fieldTextCapacity = 80;

/// Writes the fields of the identifier by its channel's layout, such as
/// "SFID 4 FSB 0 LCL 0 PVT 0 DOC 100"; hexadecimal ("SFID 0x4 ...") if `numberType` is 1. False,
/// and nothing written, for the channel that has no layout.
bool fieldText(char* buffer, std::size_t capacity, std::uint32_t id, int numberType);

/// Writes LCC, FID, DOC, LCL and PVT with slashes between them.
///
/// Deliberate: the number type works the other way round here: `numberType` 1, elsewhere
/// hexadecimal, gives decimal numbers, and any other value hexadecimal ones ("$2/$4/...").
void parameterKeyText(char* buffer, std::size_t capacity, std::uint32_t id, int numberType);

/// Writes the parameter key of an identifier as "0x%x".
void parameterKeyIdText(char* buffer, std::size_t capacity, std::uint32_t id);

/// Column header of `fieldText`.
inline constexpr const char* fieldHeader = "FID/FSB/LCL/PVT/DOC/Address/Port";
/// Column header of `parameterKeyText`.
inline constexpr const char* parameterKeyHeader = "LCC/FID/DOC/LCL/PVT";

/// Tooltip of a column that shows the channel. Deliberate: it tells 5 for NSC, as it always has.
inline constexpr const char* channelColumnToolTip =
    "Logical Communication Channel\n\n0 EEC Exception Event Channel\n1 Reserved\n"
    "2 NOC Normal Operation Channel\n3 DMC Directed Message Channel\n5 NSC Node Service Channel\n"
    "5 UDC User Defined Channel\n6 TMC Test/Maintenance Channel\n"
    "7 FMC CAN Base Frame Migration Channel";

/// Tooltip of a selection of the channel.
inline constexpr const char* channelSelectionToolTip =
    "EEC Exception Event Channel\n1 Reserved Channel\nNOC Normal Operation Channel\n"
    "DMC Directed Message Channel\nNSC Node Service Channel\nUDC User Defined Channel\n"
    "TMC Test Maintenance Channel\nFMC Frame Migration Channel";

/// Names of the fields where they are shown at length.
namespace names {
inline constexpr const char* sourceFid = "Source FID Function Code Identifier";
inline constexpr const char* functionalStatusBit = "Functional Status Bit";
inline constexpr const char* fsbDataFlag = "FSB Data Flag";
inline constexpr const char* localDataBit = "LCL Local Data Bit";
inline constexpr const char* privateDataBit = "PVT Private Data Bit";
inline constexpr const char* dataObjectCode = "DOC Data Object Code";
inline constexpr const char* redundancyChannel = "RCI Redundancy Channel Identifier";
inline constexpr const char* clientFid = "Client FID";
inline constexpr const char* serviceMessageType = "SMT Service Message Type";
inline constexpr const char* serverFid = "Server FID";
inline constexpr const char* sid = "SID";
inline constexpr const char* sourceAddress = "Source Address";
inline constexpr const char* destinationAddress = "Destination Address";
inline constexpr const char* sourcePort = "Source Port";
inline constexpr const char* destinationPort = "Destination Port";
} // namespace names

} // namespace zul::arinc825
