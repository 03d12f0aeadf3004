#include "profile/StandardTables.h"

#include <array>
#include <cstddef>

namespace zul {

namespace {

struct Row
{
    std::uint32_t code;
    const char* label;
};

// Function codes of ARINC 825-2; what is not named is reserved.
constexpr std::array<Row, 35> fids825Part2{{
    {0, "Multicast Function Code Identifier"},
    {4, "Flight State"},
    {8, "Flight Controls"},
    {12, "Fire Protection"},
    {16, "Air Data"},
    {20, "Navigation"},
    {24, "Propulsion"},
    {28, "Auxiliary Power"},
    {32, "Hydraulic"},
    {36, "Fuel"},
    {40, "Defensive Aid Systems"},
    {44, "Auto Flight"},
    {48, "Landing Gear"},
    {52, "Wheel & Brake"},
    {56, "Payload Handling (Military)"},
    {60, "Wing Ice Protection"},
    {64, "Cabin Pressure Control"},
    {68, "Low Pressure System"},
    {72, "Cabin Air Conditioning Control"},
    {76, "Ice Detection and Engine Anti Ice"},
    {80, "Environmental Control Systems"},
    {84, "Electrical Systems"},
    {88, "Flight Deck Control Panel"},
    {92, "Flight Deck Lighting & Security"},
    {96, "Door Indication Control"},
    {100, "Communication"},
    {104, "Flight Data / Voice Recording"},
    {108, "Oxygen"},
    {112, "Water & Waste"},
    {116, "Cargo Handling"},
    {120, "Galley"},
    {124, "Central Maintenance"},
    {125, "Data Loader Target"},
    {126, "Data Loader Source"},
    {127, "Temporary Test & Maintenance"},
}};

// Function codes of ARINC 825-3; what is not named is reserved.
constexpr std::array<Row, 109> fids825Part3{{
    {0, "Multicast Function Code Identifier"},
    {4, "Flight State"},
    {8, "Indicating/Recording Systems: Central Warning Systems"},
    {9, "Indicating/Recording Systems: Central Display Systems"},
    {10, "Flight Controls"},
    {11, "Engine Controls"},
    {12, "Engine Indicating"},
    {13, "Electrical Power"},
    {14, "Auto Flight"},
    {15, "Integrated Modular Avionics"},
    {16, "Engine Fuel And Control"},
    {17, "Fire Protection"},
    {18, "Fuel"},
    {19, "Indicating/Recording Systems: Central Computers"},
    {20, "Stabilizers"},
    {21, "Wings"},
    {22, "Propellers/Propulsion"},
    {23, "Rotors Flight Control"},
    {24, "Rotor(S)"},
    {25, "Rotor Drive(S)"},
    {26, "Tail Rotor"},
    {27, "Tail Rotor Drive"},
    {28, "Exhaust: Thrust Reverser"},
    {29, "Air"},
    {30, "Power Plant"},
    {31, "Oil"},
    {32, "Ignition"},
    {33, "Ice And Rain Protection"},
    {34, "Landing Gear"},
    {35, "Landing Gear: Wheels And Brakes"},
    {36, "Doors: Landing Gear"},
    {37, "Doors: Monitoring And Operation"},
    {38, "Doors: Passenger/Crew"},
    {39, "Indicating/Recording Systems"},
    {43, "Defensive Aid System"},
    {44, "Engine Turbine/Turbo Prop Ducted Fan/Unducted Fan"},
    {45, "Turbines"},
    {46, "Propulsion Augmentation"},
    {47, "Accessory Gear-Boxes"},
    {48, "Hydraulic Power"},
    {49, "Water Ballast"},
    {50, "Communications"},
    {51, "Communications: Speech Communications"},
    {52, "Navigation"},
    {53, "Air Conditioning: Pressurization Control"},
    {54, "Indicating/Recording Systems: Instrument & Control Panels"},
    {55, "Indicating/Recording Systems: Independent Instruments"},
    {56, "Fuselage"},
    {57, "Air Conditioning: Temperature Control"},
    {58, "Communications: Data Transmission And Automatic Calling"},
    {59, "Communications: Static Discharging"},
    {60, "Payload Handling (Military)"},
    {61, "Communications: Integrated Automatic Tuning"},
    {62, "Lights: Flight Compartment"},
    {63, "Lights"},
    {64, "Lights: Emergency Lighting"},
    {65, "Oxygen"},
    {66, "Information Systems"},
    {67, "Air Conditioning"},
    {68, "Doors: Emergency Exit"},
    {69, "Doors: Cargo"},
    {70, "Nacelles/Pylons"},
    {71, "Doors: Service And Miscellaneous"},
    {72, "Communications: Audio Integrating"},
    {73, "Starting"},
    {77, "Airborne Auxiliary Power"},
    {78, "Pneumatic"},
    {79, "Vacuum"},
    {80, "Doors"},
    {81, "Windows"},
    {82, "Exhaust"},
    {83, "Folding Blades/Pylon"},
    {84, "Exhaust: Collector/Nozzle"},
    {85, "Air Conditioning: Heating"},
    {86, "Air Conditioning: Distribution"},
    {87, "Air Conditioning: Compression"},
    {88, "Air Conditioning: Cooling"},
    {89, "Communications: Satcom"},
    {90, "Communications: Interphone"},
    {91, "Communications: Passenger Address, Entertainment And Comfort Available"},
    {92, "Cabin Systems: Cabin Core System"},
    {93, "Communications: Audio & Video Monitoring"},
    {94, "Indicating/Recording Systems: Automatic Data Reporting Systems"},
    {95, "Lights: Passenger Compartment"},
    {96, "Exhaust: Noise Suppressor"},
    {97, "Exhaust: Supplementary Air"},
    {98, "Water Injection"},
    {102, "Central Maintenance System (CMS)"},
    {103, "Cargo And Accessory Compartments"},
    {104, "Indicating/Recording Systems: Recorders"},
    {105, "Lights: Cargo And Service Compartments"},
    {106, "Water/Waste"},
    {107, "Cabin Systems"},
    {108, "Cabin Systems: Cabin Mass Memory System"},
    {109, "Cabin Systems: External Communication System"},
    {110, "Cabin Systems: Inflight Entertainment System"},
    {111, "Doors: Fixed Interior"},
    {112, "Doors: Entrance Stairs"},
    {113, "Vibration And Noise Analysis (Helicopter Only)"},
    {114, "Air Conditioning: Moisture/Air Contaminant Control"},
    {115, "Equipment/Furnishings"},
    {116, "Lights: Exterior"},
    {117, "Cabin Systems: Cabin Monitoring System"},
    {118, "Cabin Systems: Miscellaneous Cabin System"},
    {119, "Standard Practices And Structures - General"},
    {123, "Galley Inserts"},
    {125, "Periodic Health Status Message (PHSM)"},
    {126, "A826 Upload Target Or Download Source"},
    {127, "Temporary Test & Maintenance"},
}};

// Deliberate: "W" stands at both 34 and 38; the codes alone tell them apart.
constexpr std::array<Row, 54> units{{
    {0, "n.a."},    {1, "m"},      {2, "mm"},       {3, "km"},    {4, "kg"},     {5, "t"},
    {6, "gm"},      {7, "l"},      {8, "s"},        {9, "min"},   {10, "h"},     {11, "d"},
    {12, "y"},      {13, "A"},     {14, "K"},       {15, "cd"},   {16, "m2"},    {17, "m3"},
    {18, "l/min"},  {19, "m/s"},   {20, "s-1"},     {21, "kg/h"}, {22, "m/s2"},  {23, "m-1"},
    {24, "kg/m3"},  {25, "m3/kg"}, {26, "A/m2"},    {27, "A/m"},  {28, "cd/m2"}, {29, "rad"},
    {30, "Hz"},     {31, "N"},     {32, "Pa"},      {33, "J"},    {34, "W"},     {35, "C"},
    {36, "V"},      {37, "F"},     {38, "W"},       {39, "S"},    {40, "Wb"},    {41, "T"},
    {42, "H"},      {43, "oC"},    {44, "o (deg)"}, {45, "Nm"},   {46, "N/m"},   {47, "rad/s"},
    {48, "rad/s2"}, {49, "W/m2"},  {50, "J/K"},     {51, "W/mK"}, {52, "J/m3"},  {53, "V/m"},
}};

template <std::size_t Size>
constexpr bool ascends(const std::array<Row, Size>& rows)
{
    for (std::size_t i = 1; i < Size; ++i) {
        if (rows[i - 1].code >= rows[i].code) {
            return false;
        }
    }
    return true;
}

static_assert(ascends(fids825Part2) && fids825Part2.back().code < fidCount);
static_assert(ascends(fids825Part3) && fids825Part3.back().code < fidCount);
static_assert(ascends(units) && units.back().code == units.size() - 1);

template <std::size_t Size>
CodeTable fidTable(const std::array<Row, Size>& rows)
{
    CodeTable table;
    const QString reserved = QLatin1String(reservedFid);
    for (std::uint32_t code = 0; code < fidCount; ++code) {
        table[code] = reserved;
    }
    for (const Row& row : rows) {
        table[row.code] = QLatin1String(row.label);
    }
    return table;
}

} // namespace

CodeTable makeFidTable825Part2()
{
    return fidTable(fids825Part2);
}

CodeTable makeFidTable825Part3()
{
    return fidTable(fids825Part3);
}

CodeTable makeUnitTable()
{
    CodeTable table;
    for (const Row& row : units) {
        table[row.code] = QLatin1String(row.label);
    }
    return table;
}

} // namespace zul
