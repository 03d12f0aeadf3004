#pragma once

#include "message/MessageCan.h"
#include "profile/ProfileParameter.h"

#include <cstddef>

class ProfileStore;

namespace zul {

/// Most characters, with the closing 0, that `textOf` writes: longer texts are cut.
inline constexpr std::size_t valueTextCapacity = 256;

/// Writes the value of an ARINC 825 parameter in a frame, by `dtc` and whatever kind the parameter
/// is: numbers as "%f", the entry of an ENUM as `ProfileStore::enumText` tells it, in Latin-1;
/// "---" for a code that is no data type. Positions are read as by `arincValue`.
///
/// An ENUM whose end position lies before its start gives an empty text, and so does an ACHAR that
/// is 0. An enumeration has values of 32 bits; the low ones of a wider field count.
///
/// Never writes more than `capacity` characters, the closing 0 included; always returns 0. Only the
/// lookup of an ENUM takes memory.
int textOf(char* buffer, std::size_t capacity, const MessageCan& message, const ProfileStore& store,
           const ProfileParameter& parameter);

} // namespace zul
