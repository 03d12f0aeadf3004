#include "modules/virtual/DeviceDescription.h"

#include "modules/support/Properties.h"
#include "modules/virtual/BitTiming.h"
#include "modules/virtual/DeviceSettings.h"

#include <array>
#include <string>

namespace canvirtual {

using canmodule::numberedChoices;
using canmodule::property;

namespace {

constexpr std::array<std::int32_t, 8> bitRates = {1'000'000, 800'000, 500'000, 250'000,
                                                  125'000,   100'000, 83'333,  50'000};

std::string rateText(std::int32_t bitRate)
{
    if (bitRate % 1'000'000 == 0) {
        return std::to_string(bitRate / 1'000'000) + " Mbit/s";
    }
    if (bitRate % 1'000 == 0) {
        return std::to_string(bitRate / 1'000) + " kbit/s";
    }
    return std::to_string(bitRate) + " bit/s";
}

std::string presetText(const TimingPreset& preset)
{
    if (preset.bitRate == 0) {
        return "Off";
    }
    return rateText(preset.bitRate) + ", sample point " + preset.samplePoint + " %";
}

template <std::size_t Size>
std::vector<PropertyChoice> presetChoices(const std::array<TimingPreset, Size>& presets)
{
    std::vector<PropertyChoice> choices;
    choices.reserve(presets.size());
    for (const TimingPreset& preset : presets) {
        choices.push_back({presetText(preset), static_cast<std::int32_t>(preset.value)});
    }
    return choices;
}

std::vector<PropertyChoice> bitRateChoices()
{
    std::vector<PropertyChoice> choices;
    choices.reserve(bitRates.size());
    for (const std::int32_t bitRate : bitRates) {
        choices.push_back({rateText(bitRate), bitRate});
    }
    return choices;
}

std::vector<PropertyChoice> pacingChoices()
{
    std::vector<PropertyChoice> choices;
    choices.reserve(nodePacings.size());
    for (const NodePacing& pacing : nodePacings) {
        choices.push_back({pacing.name, static_cast<std::int32_t>(choices.size())});
    }
    return choices;
}

} // namespace

DeviceInfo deviceDescription()
{
    DeviceInfo info;
    info.displayName = "Virtual CAN Bus";
    info.description = "CAN and CAN FD buses inside the program: devices of one bus name see each "
                       "other's frames, a scenario makes traffic, and a node answers.";
    info.moduleName = "libCanVirtual";
    info.properties = {
        property("Interface Name", key::interfaceName, PropertyKind::Text),
        property("Bus", key::busName, PropertyKind::EditableSelection,
                 {{"Bus A", 0}, {"Bus B", 1}, {"Bus C", 2}, {"Bus D", 3}}),
        property("Bit Rate", key::bitRate, PropertyKind::Selection, bitRateChoices()),
        property("BTR (16 MHz)", key::btr, PropertyKind::Btr, presetChoices(btrPresets)),
        property("NBTP (80 MHz)", key::nbtp, PropertyKind::Nbtp, presetChoices(nbtpPresets)),
        property("DBTP (80 MHz)", key::dbtp, PropertyKind::Dbtp, presetChoices(dbtpPresets)),
        property("TDCR", key::tdcr, PropertyKind::Tdcr, presetChoices(tdcrPresets)),
        property("Receive Own Frames", key::receiveOwn, PropertyKind::Selection,
                 {{"No", 0}, {"Yes", 1}}),
        property("Scenario", key::scenario, PropertyKind::Selection,
                 numberedChoices(scenarioNames)),
        property("Node", key::node, PropertyKind::Selection, numberedChoices(nodeKindNames)),
        property("Node Id", key::nodeId, PropertyKind::Text),
        property("Node Pacing", key::nodePacing, PropertyKind::Selection, pacingChoices()),
        property("Node Fault", key::nodeFault, PropertyKind::Selection,
                 numberedChoices(nodeFaultNames)),
    };
    return info;
}

} // namespace canvirtual
