#pragma once

#include "message/MessageCan.h"
#include "profile/Arinc825Id.h"

#include <cstdint>
#include <memory>

/// Who asks whom for a node service of ARINC 825: the fields of the request's identifier.
struct ServiceAddress
{
    std::uint32_t lcc = 4; ///< Logical Communication Channel; 4 is NSC
    std::uint32_t clientFid = 0;
    std::uint32_t lcl = 0; ///< Local Bit
    std::uint32_t serverFid = 0;
    std::uint32_t sid = 0; ///< Service Identifier
    std::uint32_t rci = 0; ///< Redundancy Channel Identifier
};

/// Largest number that an entry of the service identifier takes. Deliberate: more than the field's
/// 7 bits hold.
inline constexpr int maxSidEntry = 511;

/// The bit that tells a request (1) from an answer (0).
inline constexpr std::uint32_t requestBit = zul::arinc825::service::smt.mask();

/// The identifier of a request.
///
/// Deliberate: nothing is masked, so that a service identifier above 127 spills into the field of
/// the server.
std::uint32_t requestId(const ServiceAddress& address);

/// A new extended data frame with `byteCount` bytes, all 0.
std::unique_ptr<zul::MessageCan> serviceFrame(std::uint32_t id, std::uint32_t byteCount);

/// `message` as a frame that may answer a client, or null. An error frame has no identifier.
const zul::MessageCan* answerOf(const Message* message);
