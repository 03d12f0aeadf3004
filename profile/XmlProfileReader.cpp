#include "profile/XmlProfileReader.h"

#include "core/Console.h"
#include "profile/ComposedId.h"
#include "profile/PositionCheck.h"
#include "profile/ProfileChecks.h"
#include "profile/ProfileNumbers.h"
#include "profile/ProfileStore.h"
#include "profile/XmlProfileNames.h"
#include "profile/XmlSource.h"

#include <cmath>

namespace zul {

namespace {

namespace attribute = xmlProfile::attribute;

// MIN or MAX: a finite number, or an unsigned one of 64 bits with its base taken from its prefix;
// other text gives 0.
double limit(const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && std::isfinite(number)) {
        return number;
    }
    constexpr int anyBase = 0;
    return static_cast<double>(text.toULongLong(nullptr, anyBase));
}

class Reader
{
public:
    Reader(XmlSource& source, ProfileStore& store, ArincProfile& profile, ProfileReport& report)
        : m_source(source),
          m_store(store),
          m_profile(profile),
          m_report(report),
          m_checks(store, store.fidTable825Part3(), profile, report)
    {
    }

    void read()
    {
        const QXmlStreamAttributes attributes = m_source.attributes();
        m_profile.name = xmlText(attributes, attribute::name);
        m_profile.comment = xmlText(attributes, attribute::comment);
        setPosition(xmlText(attributes, attribute::id), m_profile.id, m_profile.subId);
        m_checks.checkProfileName(lineOfRoot);
        m_checks.checkProfileIds(lineOfRoot);
        while (m_source.nextChild()) {
            if (m_source.isAt(xmlProfile::fidList)) {
                eachChild(xmlProfile::fid, &Reader::userFid);
            } else if (m_source.isAt(xmlProfile::unitList)) {
                eachChild(xmlProfile::unit, &Reader::userUnit);
            } else if (m_source.isAt(xmlProfile::enumList)) {
                eachChild(xmlProfile::enumeration, &Reader::enumeration);
            } else if (m_source.isAt(xmlProfile::parameterList)) {
                eachChild(xmlProfile::sfid, &Reader::sfid);
            } else {
                m_source.skip();
            }
        }
    }

private:
    using Take = void (Reader::*)(int line, const QXmlStreamAttributes& attributes);

    // Hands over the children of that name. Each of them, and the element itself, is left at its
    // end.
    void eachChild(const char* element, Take take)
    {
        while (m_source.nextChild()) {
            if (m_source.isAt(element)) {
                (this->*take)(m_source.line(), m_source.attributes());
            } else {
                m_source.skip();
            }
        }
    }

    void userFid(int line, const QXmlStreamAttributes& attributes)
    {
        ProfileUserFid fid;
        fid.name = xmlText(attributes, attribute::name);
        fid.comment = xmlText(attributes, attribute::comment);
        fid.code = xmlUnsigned(attributes, attribute::code);
        m_checks.addUserFid(line, fid);
        m_source.skip();
    }

    void userUnit(int line, const QXmlStreamAttributes& attributes)
    {
        ProfileUserUnit unit;
        unit.name = xmlText(attributes, attribute::name);
        unit.comment = xmlText(attributes, attribute::comment);
        unit.acronym = xmlText(attributes, attribute::acronym);
        unit.code = xmlUnsigned(attributes, attribute::code);
        m_checks.addUserUnit(line, unit);
        m_source.skip();
    }

    // Deliberate: a later enumeration replaces an earlier one of its name, without a message.
    void enumeration(int, const QXmlStreamAttributes& attributes)
    {
        ProfileEnum made;
        made.enumId = m_store.nextEnumId();
        made.name = xmlText(attributes, attribute::name);
        m_enumeration = &m_profile.enums[made.name];
        *m_enumeration = made;
        eachChild(xmlProfile::enumValue, &Reader::enumValue);
    }

    void enumValue(int line, const QXmlStreamAttributes& attributes)
    {
        m_checks.addEnumValue(line, *m_enumeration, xmlNumber(attributes, attribute::val),
                              xmlText(attributes, attribute::label));
        m_source.skip();
    }

    void sfid(int, const QXmlStreamAttributes& attributes)
    {
        m_fid = xmlUnsigned(attributes, attribute::id);
        eachChild(xmlProfile::parameter, &Reader::parameter);
    }

    void parameter(int line, const QXmlStreamAttributes& attributes)
    {
        ProfileParameter parameter;
        parameter.parameterKind = ParameterKind::Arinc825;
        parameter.fid = m_fid;
        identifier(line, attributes, parameter);
        m_checks.setDataType(line, xmlText(attributes, attribute::dtn), parameter);
        setPosition(xmlText(attributes, attribute::spp), parameter.sppByte, parameter.sppBit);
        setPosition(xmlText(attributes, attribute::epp), parameter.eppByte, parameter.eppBit);
        checkPositions(parameter, line, m_report);
        parameter.puc = xmlUnsigned(attributes, attribute::puc);
        m_checks.checkPuc(line, parameter);
        meaning(line, attributes, parameter);
        parameter.id = xmlProfileId(parameter);
        if (!hasDoc(parameter.lcc)) {
            print("Parameter id 0x%x lcc 0x%x sfid 0x%x lcl 0x%x pvt 0x%x dfid 0x%x sid 0x%x\n",
                  parameter.id, parameter.lcc, parameter.fid, parameter.lcl, parameter.pvt,
                  parameter.dfid, parameter.sid);
        }
        m_checks.file(line, parameter);
        m_source.skip();
    }

    void identifier(int line, const QXmlStreamAttributes& attributes, ProfileParameter& parameter)
    {
        m_checks.setChannel(line, xmlText(attributes, attribute::lcc), parameter);
        m_checks.checkFid(line, parameter);
        parameter.doc = xmlUnsigned(attributes, attribute::doc);
        m_checks.checkDoc(line, parameter);
        // Deliberate: only this attribute counts; the NID in `doc` does not stand in for it.
        parameter.dfid = xmlUnsigned(attributes, attribute::dfid);
        m_checks.checkDfid(line, parameter);
        parameter.lcl = xmlUnsigned(attributes, attribute::lcl);
        parameter.pvt = xmlUnsigned(attributes, attribute::pvt);
        m_checks.checkLclPvt(line, parameter);
        parameter.sid = xmlUnsigned(attributes, attribute::sid);
        m_checks.checkSid(line, parameter, ProfileChecks::maxXmlSid);
    }

    void meaning(int line, const QXmlStreamAttributes& attributes, ProfileParameter& parameter)
    {
        parameter.nme = xmlText(attributes, attribute::nme);
        m_checks.checkNme(line, parameter);
        parameter.unitLabel = xmlText(attributes, attribute::pua);
        parameter.pun = parameter.unitLabel;
        parameter.min = limit(xmlText(attributes, attribute::min));
        parameter.max = limit(xmlText(attributes, attribute::max));
        m_checks.checkRange(line, parameter);
        // Deliberate: files that this program wrote have "upr" in its place, so that the update
        // period does not come back.
        parameter.upr = xmlNumber(attributes, attribute::upt);
        m_checks.checkUpr(line, parameter);
        parameter.lat = realNumber(xmlText(attributes, attribute::lat));
        m_checks.checkLat(line, parameter);
        parameter.rci = xmlUnsigned(attributes, attribute::rci);
        m_checks.checkRci(line, parameter);
        parameter.notes = xmlText(attributes, attribute::nts);
        m_checks.checkNotes(line, parameter);
    }

    XmlSource& m_source;
    ProfileStore& m_store;
    ArincProfile& m_profile;
    ProfileReport& m_report;
    ProfileChecks m_checks;
    ProfileEnum* m_enumeration = nullptr; ///< whose values are read
    std::uint32_t m_fid = 0;              ///< of the parameters that are read
};

} // namespace

bool readXmlProfile(const QString& path, ProfileStore& store, ArincProfile& profile)
{
    profile.fileName = path;
    ProfileReport report(path, profile.valid, profile.result);
    XmlSource source;
    if (!source.open(path) || source.root() != QLatin1String(xmlProfile::root)) {
        return false;
    }
    profile.clearContent();
    Reader(source, store, profile, report).read();
    if (!source.isWhole()) {
        store.removeFromIndex(profile);
        return false;
    }
    return true;
}

} // namespace zul
