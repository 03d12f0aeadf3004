#pragma once

#include "profile/ProfileParameter.h"

#include <cstdint>

/// What a user chose who was asked for one identifier.
struct IdentifierChoice
{
    std::uint32_t id = 0;
    ProfileParameter parameter;

    /// A parameter of a profile was chosen. Without one, where a profile or a group was chosen, the
    /// parameter chosen before stays.
    void takeParameter(std::uint32_t identifier, const ProfileParameter* chosen)
    {
        id = identifier;
        if (chosen != nullptr) {
            parameter = *chosen;
        }
    }

    /// An identifier seen on the bus was chosen: the parameter reads its bytes as they lie.
    ///
    /// Deliberate: all its other fields stay as the choice before left them.
    void takeActive(std::uint32_t identifier)
    {
        id = identifier;
        parameter.id = identifier;
        parameter.parameterKind = ParameterKind::Raw;
    }
};
