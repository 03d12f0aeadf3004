#include "profile/ZorbProfileReader.h"

#include "profile/ProfileStore.h"
#include "profile/XmlSource.h"

namespace zul {

namespace {

ProfileParameter readParameter(const QXmlStreamAttributes& attributes, ProfileStore& store)
{
    ProfileParameter parameter;
    parameter.parameterKind = ParameterKind::CanAerospace;
    parameter.nme = xmlText(attributes, "name");
    parameter.pun = xmlText(attributes, "unit");
    parameter.id = xmlUnsigned(attributes, "id");
    parameter.sppByte = xmlUnsigned(attributes, "startByte");
    parameter.eppByte = xmlUnsigned(attributes, "stopByte");
    parameter.sppBit = xmlUnsigned(attributes, "startBit");
    parameter.eppBit = xmlUnsigned(attributes, "stopBit");
    parameter.typeName = xmlText(attributes, "enumId");
    parameter.dtc = store.canAerospaceTypeCode(xmlText(attributes, "canasType"));
    return parameter;
}

ZorbChapter readChapter(XmlSource& source, ProfileStore& store, std::uint32_t number)
{
    ZorbChapter chapter;
    chapter.fid = number;
    chapter.name = xmlText(source.attributes(), "name");
    while (source.nextChild()) {
        if (source.isAt("Parameter")) {
            const ProfileParameter parameter = readParameter(source.attributes(), store);
            chapter.parameters.emplace(parameter.serial, parameter);
        }
        source.skip();
    }
    return chapter;
}

} // namespace

bool readZorbProfile(const QString& path, ProfileStore& store, ZorbProfile& profile)
{
    profile.fileName = path;
    XmlSource source;
    if (!source.open(path) || source.root() != QLatin1String(zorbProfileRoot)) {
        return false;
    }
    profile.fids.clear();
    profile.name = xmlText(source.attributes(), "name");
    std::uint32_t number = 0;
    while (source.nextChild()) {
        if (source.isAt("Chapter")) {
            profile.fids[number] = readChapter(source, store, number);
            ++number;
        } else {
            source.skip();
        }
    }
    return source.isWhole();
}

} // namespace zul
