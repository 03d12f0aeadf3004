#pragma once

/// Elements and attributes of an ARINC 825-3 profile in XML, the parameter document.
namespace zul::xmlProfile {

/// The root element; LRU documents have the same.
inline constexpr const char* root = "Arinc825Profile";
inline constexpr const char* fidList = "FidList";
inline constexpr const char* fid = "Fid";
inline constexpr const char* unitList = "UnitList";
inline constexpr const char* unit = "Unit";
inline constexpr const char* enumList = "EnumList";
inline constexpr const char* enumeration = "Enum";
inline constexpr const char* enumValue = "Value";
inline constexpr const char* parameterList = "ParameterList";
inline constexpr const char* sfid = "Sfid";
inline constexpr const char* parameter = "Parameter";

namespace attribute {
inline constexpr const char* version = "version"; ///< written, never read
inline constexpr const char* name = "name";
inline constexpr const char* id = "id"; ///< of the root "id.sub-id", of an Sfid the function code
inline constexpr const char* comment = "comment";
inline constexpr const char* code = "code";
inline constexpr const char* acronym = "acronym"; ///< read, never written
inline constexpr const char* val = "val";
inline constexpr const char* label = "label";

// Of a parameter.
inline constexpr const char* lcc = "lcc";
inline constexpr const char* sid = "sid";
inline constexpr const char* dfid = "dfid";
inline constexpr const char* doc = "doc";
inline constexpr const char* lcl = "lcl";
inline constexpr const char* pvt = "pvt";
inline constexpr const char* spp = "spp";
inline constexpr const char* epp = "epp";
inline constexpr const char* puc = "puc"; ///< read, never written
inline constexpr const char* pua = "pua";
inline constexpr const char* dtn = "dtn";
inline constexpr const char* nme = "nme";
inline constexpr const char* min = "min";
inline constexpr const char* max = "max";
inline constexpr const char* upr = "upr"; ///< written, never read
inline constexpr const char* upt = "upt"; ///< read, never written
inline constexpr const char* lat = "lat";
inline constexpr const char* rci = "rci";
inline constexpr const char* nts = "nts";
} // namespace attribute

} // namespace zul::xmlProfile
