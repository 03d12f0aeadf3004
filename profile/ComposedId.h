#pragma once

#include "profile/ProfileParameter.h"

#include <cstdint>

namespace zul {

/// The identifier of a parameter of a text profile. On EEC and NOC it is made
/// of LCC, FID, LCL, PVT and DOC; on all other channels the server's function code comes from the
/// NID in `doc`.
///
/// Deliberate: on those channels the SID goes into the bits 8 to 0, beside its place in the service
/// layout, RCI's bits included: a SID that is no multiple of 4 gives an identifier that no received
/// frame matches. Fields beyond their ranges spill into their neighbours, as they stand.
std::uint32_t textProfileId(const ProfileParameter& parameter);

/// The identifier of a parameter of an XML profile: as before on EEC and NOC; on all other channels
/// DFID and SID go to their places in the service layout, seven bits of each.
std::uint32_t xmlProfileId(const ProfileParameter& parameter);

/// The server's function code in the NID of a text profile.
constexpr std::uint32_t dfidOfNid(std::uint32_t nid)
{
    return (nid >> 9) & 127;
}

/// A NID with the server's function code, of which seven bits count, in it; its other bits stay,
/// but for those that no NID has.
constexpr std::uint32_t nidOfDfid(std::uint32_t nid, std::uint32_t dfid)
{
    return (dfid & 127) << 9 | (nid & 511);
}

/// NSC and TMC: the channels of services, whose parameters have a server and a SID.
constexpr bool hasServer(std::uint32_t lcc)
{
    return ((lcc - 4) & ~std::uint32_t{2}) == 0;
}

/// EEC and NOC: the channels whose parameters have a DOC.
constexpr bool hasDoc(std::uint32_t lcc)
{
    return (lcc & ~std::uint32_t{2}) == 0;
}

} // namespace zul
