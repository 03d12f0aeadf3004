#include "profile/ComposedId.h"

#include "profile/Arinc825Id.h"

namespace zul {

namespace {

// Fields that every channel has. Nothing is masked: the readers report what is out of range.
std::uint32_t commonPart(const ProfileParameter& parameter)
{
    return parameter.lcc << arinc825::lcc.shift | parameter.fid << arinc825::data::sfid.shift |
           parameter.lcl << arinc825::data::lcl.shift | parameter.pvt << arinc825::data::pvt.shift;
}

std::uint32_t docPart(const ProfileParameter& parameter)
{
    return arinc825::data::doc.set(0, parameter.doc);
}

} // namespace

std::uint32_t textProfileId(const ProfileParameter& parameter)
{
    if (hasDoc(parameter.lcc)) {
        return commonPart(parameter) | docPart(parameter);
    }
    constexpr std::uint32_t sidMask = 0x1ff;
    return commonPart(parameter) | arinc825::service::sfid.set(0, dfidOfNid(parameter.doc)) |
           (parameter.sid & sidMask);
}

std::uint32_t xmlProfileId(const ProfileParameter& parameter)
{
    if (hasDoc(parameter.lcc)) {
        return commonPart(parameter) | docPart(parameter);
    }
    return commonPart(parameter) | arinc825::service::sfid.set(0, parameter.dfid) |
           arinc825::service::sid.set(0, parameter.sid);
}

} // namespace zul
