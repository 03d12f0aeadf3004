#pragma once

#include "profile/XmlProfileNames.h"

/// Elements and attributes of an LRU document. The root element is that of a parameter document.
namespace zul::lru825 {

inline constexpr const char* root = xmlProfile::root;
inline constexpr const char* lru = "LRU";
inline constexpr const char* interfaceList = "CANBusInterfaceList";
inline constexpr const char* canInterface = "CANBusInterface";
inline constexpr const char* bitTiming = "BitTiming";
inline constexpr const char* communication = "Communication";
inline constexpr const char* transmitList = "TransmitList";
inline constexpr const char* receiveList = "ReceiveList";
inline constexpr const char* message = "Message";
inline constexpr const char* interfaceAssignment = "InterfaceAssignment";
inline constexpr const char* assignedInterface = "Interface";
inline constexpr const char* dataField = "DataField";
inline constexpr const char* parameter = "Parameter"; ///< of a data field or of the list
inline constexpr const char* parameterList = "ParameterList";
inline constexpr const char* enumEntry = "Enum";

namespace attribute {
// Of several elements.
inline constexpr const char* name = "name";
inline constexpr const char* comment = "comment";
inline constexpr const char* rci = "rci";
inline constexpr const char* fid = "fid";

// Of the root.
inline constexpr const char* id = "id";
inline constexpr const char* major = "major";
inline constexpr const char* minor = "minor";
inline constexpr const char* version = "version";

// Of the LRU.
inline constexpr const char* nodeId = "node_id";
inline constexpr const char* nodeAddress = "node_address";

// Of an interface and its bit timing.
inline constexpr const char* bitRate = "bit_rate";
inline constexpr const char* timeQuantumPerBit = "time_quantum_per_bit";
inline constexpr const char* resyncJumpWidth = "resync_jump_width";
inline constexpr const char* syncSeg = "sync_seg";
inline constexpr const char* propSeg = "prop_seg";
inline constexpr const char* phaseSeg1 = "phase_seg1";
inline constexpr const char* phaseSeg2 = "phase_seg2";
inline constexpr const char* samplingPointMode = "sampling_point_mode";

// Of a message.
inline constexpr const char* identifierType = "identifier_type";
inline constexpr const char* identifierLength = "identifier_length";
inline constexpr const char* defaultLcc = "default_lcc";
inline constexpr const char* pvt = "pvt";
inline constexpr const char* doc = "doc";
inline constexpr const char* lcl = "lcl";
inline constexpr const char* fsb = "fsb";
inline constexpr const char* txp = "txp";
inline constexpr const char* latencyMax = "latency_max";
inline constexpr const char* defaultPort = "default_port";
inline constexpr const char* fmc11BitId = "fmc_11bit_id";
inline constexpr const char* impliedFunctionalStatus = "implied_functional_status";

// Of a data field and its parameters.
inline constexpr const char* payloadProtocol = "payload_protocol";
inline constexpr const char* dlc = "dlc";
inline constexpr const char* highIntegrity = "high_integrity";
inline constexpr const char* spp = "spp";
inline constexpr const char* epp = "epp";
inline constexpr const char* pvsSpp = "pvs_spp";
inline constexpr const char* pvsEpp = "pvs_epp";

// Of a parameter of the list and its enumeration.
inline constexpr const char* pua = "pua";
inline constexpr const char* dtn = "dtn";
inline constexpr const char* max = "max";
inline constexpr const char* min = "min";
inline constexpr const char* resolution = "resolution";
inline constexpr const char* offset = "offset";
inline constexpr const char* nts = "nts";
inline constexpr const char* key = "key";
inline constexpr const char* value = "value";
} // namespace attribute

} // namespace zul::lru825
