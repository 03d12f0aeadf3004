#include "profile/XmlProfileWriter.h"

#include "profile/Arinc825Id.h"
#include "profile/ComposedId.h"
#include "profile/XmlProfileNames.h"
#include "profile/XmlSink.h"

#include <algorithm>

namespace zul {

namespace {

namespace attribute = xmlProfile::attribute;

QString channelName(std::uint32_t lcc)
{
    const auto* found =
        std::find_if(arinc825::channels.begin(), arinc825::channels.end(),
                     [lcc](const arinc825::Channel& channel) { return channel.lcc == lcc; });
    if (found == arinc825::channels.end() || !found->isInProfiles) {
        return QStringLiteral("XXX");
    }
    return QLatin1String(found->name);
}

void writeUserFids(XmlSink& sink, const ArincProfile& profile)
{
    sink.start(xmlProfile::fidList);
    for (const auto& [code, fid] : profile.userFids) {
        sink.start(xmlProfile::fid);
        sink.text(attribute::name, fid.name);
        sink.number(attribute::code, code);
        sink.end();
    }
    sink.end();
}

void writeUserUnits(XmlSink& sink, const ArincProfile& profile)
{
    sink.start(xmlProfile::unitList);
    for (const auto& [code, unit] : profile.userUnits) {
        sink.start(xmlProfile::unit);
        sink.text(attribute::name, unit.name);
        sink.number(attribute::code, code);
        sink.end();
    }
    sink.end();
}

void writeEnums(XmlSink& sink, const ArincProfile& profile)
{
    sink.start(xmlProfile::enumList);
    for (const auto& [name, enumeration] : profile.enums) {
        sink.start(xmlProfile::enumeration);
        sink.text(attribute::name, name);
        for (const auto& [value, entry] : enumeration.values) {
            sink.start(xmlProfile::enumValue);
            sink.number(attribute::val, value);
            sink.text(attribute::label, entry.label);
            sink.end();
        }
        sink.end();
    }
    sink.end();
}

void writeParameter(XmlSink& sink, const ProfileParameter& parameter)
{
    sink.start(xmlProfile::parameter);
    sink.text(attribute::lcc, channelName(parameter.lcc));
    if (hasDoc(parameter.lcc)) {
        sink.number(attribute::doc, parameter.doc);
    } else {
        sink.number(attribute::sid, parameter.sid);
        sink.number(attribute::dfid, parameter.dfid);
    }
    sink.number(attribute::lcl, parameter.lcl);
    sink.number(attribute::pvt, parameter.pvt);
    sink.pair(attribute::spp, parameter.sppByte, parameter.sppBit);
    sink.pair(attribute::epp, parameter.eppByte, parameter.eppBit);
    sink.text(attribute::pua, parameter.unitLabel);
    sink.text(attribute::dtn, parameter.typeName);
    sink.text(attribute::nme, parameter.nme);
    sink.real(attribute::min, parameter.min);
    sink.real(attribute::max, parameter.max);
    sink.number(attribute::upr, parameter.upr);
    sink.real(attribute::lat, parameter.lat);
    sink.number(attribute::rci, parameter.rci);
    sink.text(attribute::nts, parameter.notes);
    sink.end();
}

void writeParameters(XmlSink& sink, const ArincProfile& profile)
{
    sink.start(xmlProfile::parameterList);
    for (const auto& [fid, group] : profile.fids) {
        sink.start(xmlProfile::sfid);
        sink.text(attribute::name, group.name);
        sink.number(attribute::id, fid);
        for (const auto& [serial, parameter] : group.parameters) {
            writeParameter(sink, parameter);
        }
        sink.end();
    }
    sink.end();
}

} // namespace

bool writeXmlProfile(const QString& path, const ArincProfile& profile)
{
    XmlSink sink(path);
    if (!sink.open()) {
        return false;
    }
    sink.start(xmlProfile::root);
    sink.text(attribute::version, QStringLiteral("1.0"));
    sink.text(attribute::name, profile.name);
    sink.pair(attribute::id, profile.id, profile.subId);
    sink.text(attribute::comment, profile.comment);
    writeUserFids(sink, profile);
    writeUserUnits(sink, profile);
    writeEnums(sink, profile);
    writeParameters(sink, profile);
    return sink.save();
}

} // namespace zul
