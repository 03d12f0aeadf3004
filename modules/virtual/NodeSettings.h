#pragma once

#include <array>
#include <cstdint>

namespace canvirtual {

/// A node that stands on the bus beside a device and answers; the numbers are values of the
/// property "Node".
enum class NodeKind { None = 0, ServiceServer = 1, FunctionGenerator = 2 };

constexpr int nodeKindCount = 3;
constexpr std::array<const char*, nodeKindCount> nodeKindNames = {
    "None",
    "ARINC 825 server",
    "Function generator",
};

/// What goes wrong with a node; the numbers are values of the property "NodeFault".
enum class NodeFault {
    None = 0,
    Silent = 1,          ///< it hears and obeys, and answers nothing
    Late = 2,            ///< it answers after 1.5 s
    WrongIdentifier = 3, ///< its answers have another redundancy channel, or identifier plus one
    Refuses = 4,         ///< it answers that it will not, and does not
    NoAck = 5,           ///< of a server: it falls silent after the confirmation of an upload
    NoEnd = 6            ///< of a server: it falls silent while data come in
};

constexpr int nodeFaultCount = 7;
constexpr std::array<const char*, nodeFaultCount> nodeFaultNames = {
    "None",
    "Silent",
    "Answers late",
    "Wrong identifier",
    "Refuses",
    "No ACK of an upload",
    "No end of an upload",
};

/// How a server wants the frames of an upload to come; the property "NodePacing" counts them.
struct NodePacing
{
    const char* name;
    std::uint8_t messageSeparation; ///< milliseconds
    std::uint16_t blockSize;        ///< bytes
    std::uint16_t blockSeparation;  ///< milliseconds
};

constexpr int nodePacingCount = 4;
constexpr std::array<NodePacing, nodePacingCount> nodePacings = {{
    {"1 ms, 1024 bytes, 5 ms", 1, 1024, 5},
    {"2 ms, 64 bytes, 20 ms", 2, 64, 20},
    {"1 ms, blocks of 0 bytes, 3 ms", 1, 0, 3},
    {"As fast as the bus", 0, 65535, 0},
}};

/// Node ids go up to here.
constexpr std::uint32_t maxNodeId = 255;

/// What node stands beside a device.
struct NodeSettings
{
    NodeKind kind = NodeKind::None;
    NodeFault fault = NodeFault::None;
    int pacing = 0;      ///< index in `nodePacings`
    std::uint8_t id = 1; ///< node id of a generator, LRU code of a server
};

} // namespace canvirtual
