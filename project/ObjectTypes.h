#pragma once

#include <QString>

#include <array>
#include <cstdint>

/// Kinds of objects. The numbers stand in messages between windows; 3, 12, 13 and 14 are unused.
enum class ObjectType : std::int32_t {
    None = 0,
    Receive = 1,
    Transmit = 2,
    Trace = 4,
    Replay = 5,
    Status = 6, ///< the window of an interface; not an object of a project
    Graph = 7,
    Dial = 8,
    NodeService = 9,
    Statistic = 10,
    FunctionGen = 11,
    CanInterface = 15
};

/// Title and XML element of an object type.
struct ObjectTypeTexts
{
    ObjectType type;
    const char* title;
    const char* tag;
};

/// The types that a project can hold, in the order of their registration.
inline constexpr std::array<ObjectTypeTexts, 10> objectTypes{{
    {ObjectType::CanInterface, "CAN Interface", "ObjectCanInterface"},
    {ObjectType::Receive, "Receive Window", "ObjectReceive"},
    {ObjectType::Transmit, "Transmit Window", "ObjectTransmit"},
    {ObjectType::Trace, "Trace Window", "ObjectTrace"},
    {ObjectType::Replay, "Replay Window", "ObjectReplay"},
    {ObjectType::Graph, "Oscilloscope", "ObjectGraph"},
    {ObjectType::Dial, "Data Visualization", "ObjectDial"},
    {ObjectType::NodeService, "Node Service Window", "ObjectNodeService"},
    {ObjectType::Statistic, "CAN Statistic", "ObjectStatistic"},
    {ObjectType::FunctionGen, "Function Gen. Control", "ObjectFunctionGen"},
}};

/// The window of an interface. Its record is not registered, so that a project file never yields
/// one.
inline constexpr ObjectTypeTexts statusType{ObjectType::Status, "CAN Status", "ObjectStatus"};

/// Name that stands for every interface, in selectors and as the destination of a batch.
inline constexpr const char* allInterfaces = "All Interfaces";

/// `allInterfaces` as the default of the records.
QString allInterfacesName();

/// The texts of the type, or null if there is no such type.
const ObjectTypeTexts* findObjectType(ObjectType type);
