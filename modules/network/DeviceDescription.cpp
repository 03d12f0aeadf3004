#include "modules/network/DeviceDescription.h"

#include "modules/network/NetworkSettings.h"
#include "modules/support/Properties.h"

namespace cannetwork {

using canmodule::numberedChoices;
using canmodule::property;

namespace {

std::vector<PropertyChoice> yesOrNo()
{
    return {{"No", 0}, {"Yes", 1}};
}

} // namespace

DeviceInfo deviceDescription()
{
    DeviceInfo info;
    info.displayName = "CAN over UDP";
    info.description = "Buses of other machines and programs, by cannelloni or by python-can's "
                       "udp_multicast.";
    info.moduleName = "libCanNetwork";
    info.properties = {
        property("Interface Name", key::interfaceName, PropertyKind::Text),
        property("Protocol", key::protocol, PropertyKind::Selection,
                 numberedChoices(protocolNames)),
        property("cannelloni: Peer Address", key::peer, PropertyKind::Text),
        property("cannelloni: Peer Port", key::peerPort, PropertyKind::Text),
        property("cannelloni: Local Port", key::localPort, PropertyKind::Text),
        property("cannelloni: Flush Time [us]", key::flushTime, PropertyKind::Text),
        property("cannelloni: Other Peers", key::acceptOthers, PropertyKind::Selection,
                 {{"Drop", 0}, {"Accept", 1}}),
        property("udp_multicast: Group", key::group, PropertyKind::EditableSelection,
                 {{"239.74.163.2", 0}, {"ff15:7079:7468:6f6e:6465:6d6f:6d63:6173", 1}}),
        property("udp_multicast: Port", key::groupPort, PropertyKind::Text),
        property("Bit Rate [bit/s]", key::bitRate, PropertyKind::Text),
        property("Receive Own Frames", key::receiveOwn, PropertyKind::Selection, yesOrNo()),
    };
    return info;
}

} // namespace cannetwork
