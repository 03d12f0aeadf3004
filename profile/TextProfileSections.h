#pragma once

#include <array>

namespace zul {

enum class TextSectionKind { Header, Profile, Fid, Unit, Enum, Parameter };

/// A section of a text profile: the line that opens it, and how many tokens its lines have.
struct TextSection
{
    TextSectionKind kind; ///< the row's index
    const char* mark;
    int tokens; ///< 0: the whole line counts
};

/// In the order in which they are written; they are read in any order.
inline constexpr std::array<TextSection, 6> textSections{{
    {TextSectionKind::Header, "<header>", 0},
    {TextSectionKind::Profile, "<profile>", 3},
    {TextSectionKind::Fid, "<fid>", 2},
    {TextSectionKind::Unit, "<unit>", 2},
    {TextSectionKind::Enum, "<enum>", 3},
    {TextSectionKind::Parameter, "<parameter>", 16},
}};

/// Tokens of a parameter line.
namespace TextColumn {
enum Column {
    Lcc,
    Fid,
    Doc,
    Lcl,
    Pvt,
    Sid,
    Spp,
    Epp,
    Puc,
    Dtn,
    Nme,
    Pun,
    Min,
    Max,
    Upr,
    Nts,
    Count
};
} // namespace TextColumn

static_assert(TextColumn::Count == textSections.back().tokens);

} // namespace zul
