#include "modules/virtual/FlightTables.h"

namespace canvirtual {

namespace {

// Function codes of ARINC 825-3.
constexpr std::uint32_t flightState = 4;
constexpr std::uint32_t centralWarning = 8;
constexpr std::uint32_t flightControls = 10;
constexpr std::uint32_t engineIndicating = 12;
constexpr std::uint32_t electricalPower = 13;
constexpr std::uint32_t autoFlight = 14;
constexpr std::uint32_t engineFuel = 16;
constexpr std::uint32_t fuel = 18;
constexpr std::uint32_t landingGear = 34;
constexpr std::uint32_t hydraulicPower = 48;
constexpr std::uint32_t navigation = 52;
constexpr std::uint32_t pressurization = 53;
constexpr std::uint32_t dataTransmission = 58;
constexpr std::uint32_t auxiliaryPower = 77;
constexpr std::uint32_t maintenance = 102;
constexpr std::uint32_t recorders = 104;
constexpr std::uint32_t healthStatus = 125;
constexpr std::uint32_t temporaryTest = 127;

constexpr std::uint32_t eec = 0;
constexpr std::uint32_t noc = 2;
constexpr std::uint32_t nsc = 4;
constexpr std::uint32_t udc = 5;
constexpr std::uint32_t tmc = 6;
constexpr std::uint32_t fmc = 7;

// Codes of the unit table.
constexpr int none = 0;
constexpr int metre = 1;
constexpr int kilogram = 4;
constexpr int secondUnit = 8;
constexpr int ampere = 13;
constexpr int metrePerSecond = 19;
constexpr int kilogramPerHour = 21;
constexpr int metrePerSecond2 = 22;
constexpr int pascal = 32;
constexpr int volt = 36;
constexpr int celsius = 43;
constexpr int degree = 44;
constexpr int radianPerSecond = 47;

using T = ArincType;
using namespace signal;

} // namespace

// Rows are filled by hand: the formatter would put every field on a line of its own.
// clang-format off
constexpr std::array<ArincParameter, arincParameterCount> arincParameters = {{
    // Attitude, from four sources
    {"Pitch Angle A", dataId(noc, flightState, 100, Rci::A), 4, 100, T::Float, {0}, degree, -90,
     90, pitchAngle},
    {"Pitch Angle B", dataId(noc, flightState, 100, Rci::B), 4, 50, T::Float, {0}, degree, -90, 90,
     pitchAngle},
    {"Pitch Angle C", dataId(noc, flightState, 100, Rci::C), 4, 25, T::Float, {0}, degree, -90, 90,
     pitchAngle},
    {"Pitch Angle D", dataId(noc, flightState, 100, Rci::D), 4, 10, T::Float, {0}, degree, -90, 90,
     pitchAngle},
    {"Roll Angle A", dataId(noc, flightState, 101, Rci::A), 4, 100, T::Float, {0}, degree, -180,
     180, rollAngle},
    {"Roll Angle B", dataId(noc, flightState, 101, Rci::B), 4, 50, T::Float, {0}, degree, -180,
     180, rollAngle},
    {"True Heading", dataId(noc, flightState, 102), 2, 20, T::UShort, {0}, degree, 0, 360,
     heading},
    {"Body Pitch Rate", dataId(noc, flightState, 103), 6, 50, T::Short, {0}, radianPerSecond, -2,
     2, pitchRate},
    {"Body Roll Rate", dataId(noc, flightState, 103), 6, 50, T::Short, {2}, radianPerSecond, -2, 2,
     rollRate},
    {"Body Yaw Rate", dataId(noc, flightState, 103), 6, 50, T::Short, {4}, radianPerSecond, -2, 2,
     yawRate},
    {"Normal Acceleration", dataId(noc, flightState, 104), 4, 50, T::Float, {0}, metrePerSecond2,
     -40, 80, normalAcceleration},
    // Air data
    {"Indicated Airspeed A", dataId(noc, flightState, 110, Rci::A), 8, 20, T::Float, {0},
     metrePerSecond, 0, 250, indicatedAirspeed},
    {"True Airspeed A", dataId(noc, flightState, 110, Rci::A), 8, 20, T::Float, {4},
     metrePerSecond, 0, 350, trueAirspeed},
    {"Indicated Airspeed B", dataId(noc, flightState, 110, Rci::B), 8, 10, T::Float, {0},
     metrePerSecond, 0, 250, indicatedAirspeed},
    {"True Airspeed B", dataId(noc, flightState, 110, Rci::B), 8, 10, T::Float, {4},
     metrePerSecond, 0, 350, trueAirspeed},
    {"Pressure Altitude", dataId(noc, flightState, 111), 4, 20, T::Float, {0}, metre, -500, 15'000,
     altitude},
    {"Vertical Speed", dataId(noc, flightState, 112), 2, 20, T::Short, {0}, metrePerSecond, -100,
     100, verticalSpeed},
    {"Mach Number", dataId(noc, flightState, 113), 2, 10, T::UShort, {0}, none, 0, 1, mach},
    {"Static Air Temperature", dataId(noc, flightState, 114), 1, 2, T::Char, {0}, celsius, -100,
     100, airTemperature},
    {"Static Pressure", dataId(noc, flightState, 115), 4, 10, T::ULong, {0}, pascal, 0, 120'000,
     staticPressure},
    // Navigation
    {"Latitude", dataId(noc, navigation, 200), 8, 5, T::Double, {0}, degree, -90, 90, latitude},
    {"Longitude", dataId(noc, navigation, 201), 8, 5, T::Double, {0}, degree, -180, 180,
     longitude},
    {"GNSS Altitude", dataId(noc, navigation, 202), 5, 5, T::Long, {0}, metre, -20'000, 20'000,
     altitude},
    {"Satellites in View", dataId(noc, navigation, 202), 5, 5, T::UChar, {4}, none, 0, 255,
     satellites},
    {"Ground Speed", dataId(noc, navigation, 203), 4, 5, T::ULong, {0}, metrePerSecond, 0, 500,
     groundSpeed},
    {"UTC Hours Tens", dataId(noc, navigation, 204, Rci::C), 3, 1, T::Bcd, {0, 4, 4}, none, 0, 9,
     hoursTens},
    {"UTC Hours Ones", dataId(noc, navigation, 204, Rci::C), 3, 1, T::Bcd, {0, 0, 4}, none, 0, 9,
     hoursOnes},
    {"UTC Minutes Tens", dataId(noc, navigation, 204, Rci::C), 3, 1, T::Bcd, {1, 4, 4}, none, 0, 9,
     minutesTens},
    {"UTC Minutes Ones", dataId(noc, navigation, 204, Rci::C), 3, 1, T::Bcd, {1, 0, 4}, none, 0, 9,
     minutesOnes},
    {"UTC Seconds Tens", dataId(noc, navigation, 204, Rci::C), 3, 1, T::Bcd, {2, 4, 4}, none, 0, 9,
     secondsTens},
    {"UTC Seconds Ones", dataId(noc, navigation, 204, Rci::C), 3, 1, T::Bcd, {2, 0, 4}, none, 0, 9,
     secondsOnes},
    {"Track Angle Error", dataId(noc, navigation, 205), 2, 10, T::Short, {0}, degree, -180, 180,
     trackError},
    // Flight controls and auto flight
    {"Aileron Position", dataId(noc, flightControls, 250), 4, 50, T::Char, {0}, degree, -30, 30,
     aileron},
    {"Elevator Position", dataId(noc, flightControls, 250), 4, 50, T::Char, {1}, degree, -30, 30,
     elevator},
    {"Rudder Position", dataId(noc, flightControls, 250), 4, 50, T::Char, {2}, degree, -30, 30,
     rudder},
    {"Flap Position", dataId(noc, flightControls, 250), 4, 50, T::UChar, {3}, degree, 0, 51,
     flaps},
    {"Autopilot Engaged", dataId(noc, autoFlight, 260), 1, 5, T::Bool, {0, 7, 1}, none, 0, 1,
     autopilotEngaged},
    {"Autopilot Mode", dataId(noc, autoFlight, 260), 1, 5, T::Enum, {0, 0, 3}, none, 0, 7,
     autopilotMode},
    // Engines and fuel
    {"N1 Left", dataId(noc, engineIndicating, 300), 4, 25, T::UShort, {0}, none, 0, 120, n1Left},
    {"N2 Left", dataId(noc, engineIndicating, 300), 4, 25, T::UShort, {2}, none, 0, 120, n2Left},
    {"N1 Right", dataId(noc, engineIndicating, 310), 4, 25, T::UShort, {0}, none, 0, 120, n1Right},
    {"N2 Right", dataId(noc, engineIndicating, 310), 4, 25, T::UShort, {2}, none, 0, 120, n2Right},
    {"Exhaust Gas Temperature Left", dataId(noc, engineIndicating, 301), 4, 10, T::UShort, {0},
     celsius, 0, 1'200, exhaustTemperatureLeft},
    {"Oil Temperature Left", dataId(noc, engineIndicating, 301), 4, 10, T::Char, {2}, celsius,
     -200, 200, oilTemperature},
    {"Oil Pressure Left", dataId(noc, engineIndicating, 301), 4, 10, T::UChar, {3}, pascal, 0, 1e6,
     oilPressure},
    {"Exhaust Gas Temperature Right", dataId(noc, engineIndicating, 311), 4, 10, T::UShort, {0},
     celsius, 0, 1'200, exhaustTemperatureRight},
    {"Oil Temperature Right", dataId(noc, engineIndicating, 311), 4, 10, T::Char, {2}, celsius,
     -200, 200, oilTemperature},
    {"Oil Pressure Right", dataId(noc, engineIndicating, 311), 4, 10, T::UChar, {3}, pascal, 0,
     1e6, oilPressure},
    {"Engine State", dataId(noc, engineIndicating, 302), 1, 2, T::Enum, {0, 4, 4}, none, 0, 15,
     engineState},
    {"Engine Fire", dataId(noc, engineIndicating, 302), 1, 2, T::Bool, {0, 0, 1}, none, 0, 1,
     zero},
    {"Chip Detected", dataId(noc, engineIndicating, 302), 1, 2, T::Bool, {0, 1, 1}, none, 0, 1,
     masterCaution},
    {"Fuel Flow Left", dataId(noc, engineFuel, 320), 8, 10, T::Float, {0}, kilogramPerHour, 0,
     1'000, fuelFlowLeft},
    {"Fuel Flow Right", dataId(noc, engineFuel, 320), 8, 10, T::Float, {4}, kilogramPerHour, 0,
     1'000, fuelFlowRight},
    {"Fuel Quantity Left", dataId(noc, fuel, 330), 4, 2, T::UShort, {0}, kilogram, 0, 2'000,
     fuelLeft},
    {"Fuel Quantity Right", dataId(noc, fuel, 330), 4, 2, T::UShort, {2}, kilogram, 0, 2'000,
     fuelRight},
    // Electrical and other systems
    {"DC Bus Voltage A", dataId(noc, electricalPower, 400, Rci::A), 8, 10, T::Float, {0}, volt, 0,
     50, busVoltage},
    {"Battery Current A", dataId(noc, electricalPower, 400, Rci::A), 8, 10, T::Short, {4}, ampere,
     -400, 400, batteryCurrent},
    {"Battery Temperature A", dataId(noc, electricalPower, 400, Rci::A), 8, 10, T::Char, {6},
     celsius, -100, 100, batteryTemperature},
    {"Generator Online A", dataId(noc, electricalPower, 400, Rci::A), 8, 10, T::Bool, {7, 0, 1},
     none, 0, 1, generatorOnline},
    {"DC Bus Voltage B", dataId(noc, electricalPower, 400, Rci::B), 4, 5, T::Float, {0}, volt, 0,
     50, busVoltage},
    {"Hydraulic Pressure A", dataId(noc, hydraulicPower, 410, Rci::A), 2, 5, T::UShort, {0},
     pascal, 0, 30e6, hydraulicPressure},
    {"Hydraulic Pressure B", dataId(noc, hydraulicPower, 410, Rci::B), 2, 5, T::UShort, {0},
     pascal, 0, 30e6, hydraulicPressure},
    {"Hydraulic Pressure C", dataId(noc, hydraulicPower, 410, Rci::C), 2, 5, T::UShort, {0},
     pascal, 0, 30e6, hydraulicPressure},
    {"Cabin Altitude", dataId(noc, pressurization, 420), 2, 1, T::Short, {0}, metre, -5'000, 5'000,
     cabinAltitude},
    {"Gear Lever", dataId(noc, landingGear, 430), 2, 10, T::Enum, {0, 0, 2}, none, 0, 3,
     gearLever},
    {"Gear in Transit", dataId(noc, landingGear, 430), 2, 10, T::Bool, {0, 7, 1}, none, 0, 1,
     gearInTransit},
    {"Nose Gear Locked", dataId(noc, landingGear, 430), 2, 10, T::Bool, {1, 0, 1}, none, 0, 1,
     gearLocked},
    {"Left Gear Locked", dataId(noc, landingGear, 430), 2, 10, T::Bool, {1, 1, 1}, none, 0, 1,
     gearLocked},
    {"Right Gear Locked", dataId(noc, landingGear, 430), 2, 10, T::Bool, {1, 2, 1}, none, 0, 1,
     gearLocked},
    {"APU Not Installed", dataId(noc, auxiliaryPower, 440), 0, 1, T::NoData, {0}, none, 0, 0,
     zero},
    {"Flight Number 1", dataId(noc, dataTransmission, 500), 8, 1, T::AChar, {0}, none, 0, 255,
     zero},
    {"Flight Number 2", dataId(noc, dataTransmission, 500), 8, 1, T::AChar, {1}, none, 0, 255,
     zero},
    {"Flight Number 3", dataId(noc, dataTransmission, 500), 8, 1, T::AChar, {2}, none, 0, 255,
     zero},
    {"Flight Number 4", dataId(noc, dataTransmission, 500), 8, 1, T::AChar, {3}, none, 0, 255,
     zero},
    {"Flight Number 5", dataId(noc, dataTransmission, 500), 8, 1, T::AChar, {4}, none, 0, 255,
     zero},
    {"Flight Number 6", dataId(noc, dataTransmission, 500), 8, 1, T::AChar, {5}, none, 0, 255,
     zero},
    {"Flight Number 7", dataId(noc, dataTransmission, 500), 8, 1, T::AChar, {6}, none, 0, 255,
     zero},
    {"Flight Number 8", dataId(noc, dataTransmission, 500), 8, 1, T::AChar, {7}, none, 0, 255,
     zero},
    {"Health Status", dataId(noc, healthStatus, 10), 2, 1, T::UShort, {0}, none, 0, 65'535, one},
    // Other channels
    {"Master Caution", dataId(eec, centralWarning, 20), 1, 1, T::Bool, {0, 0, 1}, none, 0, 1,
     masterCaution},
    {"Recorder Time", dataId(udc, recorders, 640), 8, 5, T::ULong64, {0}, secondUnit, 0, 1e6,
     utcSeconds},
    {"Recorder Drift", dataId(udc, recorders, 641), 8, 2, T::Long64, {0}, secondUnit, -1e6, 1e6,
     trackError},
    {"Recorder Block", dataId(udc, recorders, 642), 8, 2, T::Opaque, {0}, none, 0, 0, zero},
    {"Node Service Request", serviceId(nsc, maintenance, 1, engineIndicating, 0), 4, 1, T::ULong,
     {0}, none, 0, 4'294'967'295.0, utcSeconds},
    {"Node Service Reply", serviceId(nsc, maintenance, 0, engineIndicating, 0), 8, 1, T::Opaque,
     {0}, none, 0, 0, zero},
    {"Maintenance Test Counter", serviceId(tmc, temporaryTest, 1, maintenance, 5), 4, 2, T::ULong,
     {0}, none, 0, 4'294'967'295.0, utcSeconds},
    {"Directed Message", directedId(maintenance, recorders, 3, 7), 8, 5, T::Opaque, {0}, none, 0,
     0, zero},
    {"Migrated Base Frame", dataId(fmc, temporaryTest, 400), 8, 2, T::Opaque, {0}, none, 0, 0,
     zero},
}};

using C = CanasType;

constexpr std::array<CanasParameter, canasParameterCount> canasParameters = {{
    // Emergency event data
    {"Electrical Failure Event", 10, 20, C::Error, 0, 1, "", zero},
    {"Cabin Pressure Event", 11, 21, C::NoData, 0, 1, "", zero},
    // Node service, high priority: request and reply
    {"Identification Request", 128, 1, C::NoData, 0, 1, "", zero},
    {"Identification Reply", 129, 10, C::UChar4, 0, 1, "", one},
    {"Synchronisation Request", 130, 1, C::ULong, 1, 1, "s", utcSeconds},
    {"Download Request", 132, 1, C::MemId, 2, 1, "", utcSeconds},
    {"Download Reply", 133, 10, C::ChkSum, 2, 1, "", utcSeconds},
    // User-defined, high priority
    {"Recorder Time", 200, 30, C::Long, 0, 10, "s", utcSeconds},
    {"Recorder Flags", 201, 30, C::BLong, 0, 5, "", masterCaution},
    {"Recorder Channels", 202, 30, C::Char4, 0, 5, "", pitchAngle},
    {"Recorder Bits", 203, 30, C::BChar4, 0, 5, "", gearLever},
    // Normal operation data
    {"Longitudinal Acceleration", 300, 10, C::Float, 0, 50, "m/s2", longitudinalAcceleration},
    {"Lateral Acceleration", 301, 10, C::Float, 0, 50, "m/s2", lateralAcceleration},
    {"Normal Acceleration", 302, 10, C::Float, 0, 50, "m/s2", normalAcceleration},
    {"Pitch Rate", 303, 10, C::Float, 0, 50, "rad/s", pitchRate},
    {"Roll Rate", 304, 10, C::Float, 0, 50, "rad/s", rollRate},
    {"Yaw Rate", 305, 10, C::Float, 0, 50, "rad/s", yawRate},
    {"Pitch Angle", 311, 10, C::Float, 0, 50, "deg", pitchAngle},
    {"Roll Angle", 312, 10, C::Float, 0, 50, "deg", rollAngle},
    {"Altitude Rate", 314, 11, C::Float, 0, 20, "m/s", verticalSpeed},
    {"Indicated Airspeed", 315, 11, C::Float, 0, 20, "m/s", indicatedAirspeed},
    {"True Airspeed", 316, 11, C::Float, 0, 20, "m/s", trueAirspeed},
    {"Mach Number", 318, 11, C::Float, 0, 10, "", mach},
    {"Heading Angle", 321, 10, C::Float, 0, 20, "deg", heading},
    {"Standard Altitude", 322, 11, C::Float, 0, 20, "m", altitude},
    {"Static Air Temperature", 324, 11, C::Short, 0, 2, "oC", airTemperature},
    {"Control Surface Positions", 400, 12, C::Char3, 0, 25, "deg", aileron},
    {"Elevator and Trim", 401, 12, C::Short2, 0, 25, "deg", elevator},
    {"Flap and Slat Position", 402, 12, C::UChar2, 0, 5, "deg", flaps},
    {"Engine 1 N1", 500, 13, C::UShort, 0, 20, "%", n1Left},
    {"Engine 2 N1", 501, 14, C::UShort, 0, 20, "%", n1Right},
    {"Engine Temperatures", 520, 13, C::UShort2, 0, 10, "oC", exhaustTemperatureLeft},
    {"Engine Status Words", 530, 13, C::BShort2, 0, 5, "", engineState},
    {"Engine Status Bytes", 531, 13, C::BChar3, 0, 5, "", engineState},
    {"Fuel Quantity Left", 660, 15, C::UShort, 0, 2, "kg", fuelLeft},
    {"Oil Temperatures", 670, 13, C::Char2, 0, 2, "oC", oilTemperature},
    {"DC System Voltage", 920, 16, C::Float, 0, 10, "V", busVoltage},
    {"Battery Current", 930, 16, C::Char, 0, 10, "A", batteryCurrent},
    {"Landing Gear Lever", 1'175, 17, C::BChar, 0, 5, "", gearLever},
    {"Gear Lock Bits", 1'176, 17, C::BShort, 0, 5, "", gearLocked},
    {"Door Bits", 1'177, 17, C::BChar2, 0, 2, "", zero},
    {"UTC", 1'200, 18, C::UChar3, 0, 1, "", secondsOnes},
    {"Satellites in View", 1'210, 18, C::UChar, 0, 1, "", satellites},
    // User-defined, low priority; debug; node service, low priority
    {"Flight Number, first Half", 1'800, 30, C::AChar4, 0, 1, "", zero},
    {"Flight Number, three Letters", 1'801, 30, C::AChar3, 0, 1, "", zero},
    {"Debug Letters", 1'900, 31, C::AChar2, 0, 2, "", zero},
    {"Debug Letter", 1'901, 31, C::AChar, 0, 2, "", zero},
    {"State Transmission", 2'000, 1, C::NoData, 4, 1, "", zero},
}};
// clang-format on
namespace {

constexpr bool sameFrame(const ArincParameter& left, const ArincParameter& right)
{
    return left.byteCount == right.byteCount && left.rateHz == right.rateHz;
}

/// Rows of one identifier stand together and agree on the frame; every row lies within its frame.
constexpr bool isConsistent(const std::array<ArincParameter, arincParameterCount>& table)
{
    for (std::size_t row = 0; row < table.size(); ++row) {
        const ArincParameter& parameter = table[row];
        const BytePosition& position = parameter.position;
        const bool empty = parameter.type == ArincType::NoData;
        if (parameter.rateHz < 1 || parameter.rateHz > 100 || parameter.min > parameter.max ||
            (!empty && position.byte >= parameter.byteCount) || position.bit + position.width > 8) {
            return false;
        }
        for (std::size_t other = row + 1; other < table.size(); ++other) {
            const bool sameId = parameter.id == table[other].id;
            if (sameId &&
                (!sameFrame(parameter, table[other]) || table[other - 1].id != table[other].id)) {
                return false;
            }
        }
    }
    return true;
}

template <std::size_t Size, typename Row>
constexpr bool hasAllTypes(const std::array<Row, Size>& table, int typeCount)
{
    for (int type = 0; type < typeCount; ++type) {
        bool found = false;
        for (const Row& row : table) {
            found = found || static_cast<int>(row.type) == type;
        }
        if (!found) {
            return false;
        }
    }
    return true;
}

static_assert(isConsistent(arincParameters));
static_assert(hasAllTypes(arincParameters, 16));
static_assert(hasAllTypes(canasParameters, 30));

} // namespace

} // namespace canvirtual
