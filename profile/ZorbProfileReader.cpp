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

ZorbChapter readChapter(QXmlStreamReader& reader, ProfileStore& store, std::uint32_t number)
{
    ZorbChapter chapter;
    chapter.fid = number;
    chapter.name = xmlText(reader.attributes(), "name");
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Parameter")) {
            const ProfileParameter parameter = readParameter(reader.attributes(), store);
            chapter.parameters.emplace(parameter.serial, parameter);
        }
        reader.skipCurrentElement();
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
    QXmlStreamReader& reader = source.reader();
    profile.name = xmlText(reader.attributes(), "name");
    std::uint32_t number = 0;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Chapter")) {
            profile.fids[number] = readChapter(reader, store, number);
            ++number;
        } else {
            reader.skipCurrentElement();
        }
    }
    return true;
}

} // namespace zul
