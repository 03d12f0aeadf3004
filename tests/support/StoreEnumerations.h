#pragma once

#include "profile/ProfileStore.h"

/// Gives a store an enumeration without a profile file. A program includes this in one source
/// alone.
namespace zul::test {

using Enumerations = std::map<std::int32_t, ProfileEnum>;

Enumerations& enumerationsOf(ProfileStore& store);

/// Access rules do not hold for what an explicit instantiation names.
template <Enumerations ProfileStore::*Member>
struct EnumerationsOfStore
{
    friend Enumerations& enumerationsOf(ProfileStore& store) { return store.*Member; }
};

template struct EnumerationsOfStore<&ProfileStore::m_enumerations>;

/// Adds `value` with `label`, in Latin-1, to the enumeration of that id.
inline void addEnumValue(ProfileStore& store, std::int32_t enumId, std::int32_t value,
                         const char* label)
{
    ProfileEnum& enumeration = enumerationsOf(store)[enumId];
    enumeration.enumId = enumId;
    enumeration.values[value].value = value;
    enumeration.values[value].label = QString::fromLatin1(label);
}

} // namespace zul::test
