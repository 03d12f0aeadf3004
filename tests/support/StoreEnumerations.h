#pragma once

#include "profile/ProfileStore.h"

namespace zul::test {

/// Adds `value` with `label`, in Latin-1, to the enumeration of that id, without a profile file.
inline void addEnumValue(ProfileStore& store, std::int32_t enumId, std::int32_t value,
                         const char* label)
{
    ProfileEnum enumeration;
    const auto found = store.enumerations().find(enumId);
    if (found != store.enumerations().end()) {
        enumeration = found->second;
    }
    enumeration.enumId = enumId;
    enumeration.values[value].value = value;
    enumeration.values[value].label = QString::fromLatin1(label);
    store.addEnumeration(enumeration);
}

} // namespace zul::test
