#include "profile/ProfileCrossCheck.h"

#include "profile/ProfileNumbers.h"

#include <QStringBuilder>

#include <unordered_map>

namespace zul {

namespace {

// "Profile %s: %s " and the text, with the file and the prefix.
QString message(const QString& fileName, const QString& text)
{
    return QStringLiteral("Profile ") % fileName.toHtmlEscaped() % QStringLiteral(": ") %
           QLatin1String(errorPrefix) % QLatin1Char(' ') % text % QStringLiteral("<br>");
}

QString usedBy(const QString& fileName)
{
    return QStringLiteral(" already used by ") % fileName.toHtmlEscaped();
}

class CrossCheck
{
public:
    explicit CrossCheck(QString& report) : m_report(report) {}

    void takeReport(const ArincProfile& profile)
    {
        if (!profile.valid) {
            append(profile.result);
        }
    }

    void take(const ArincProfile& profile)
    {
        checkId(profile);
        for (const auto& [code, fid] : profile.userFids) {
            checkCode(m_userFids, code, QStringLiteral("FID "), profile);
        }
        for (const auto& [code, unit] : profile.userUnits) {
            checkCode(m_userUnits, code, QStringLiteral("User Unit "), profile);
        }
        for (const auto& [fid, group] : profile.fids) {
            for (const auto& [serial, parameter] : group.parameters) {
                checkIdentifier(parameter, profile);
            }
        }
    }

    bool isClean() const { return m_isClean; }

private:
    // File names by number; they belong to the profiles.
    using Owners = std::unordered_map<std::uint32_t, const QString*>;

    void checkId(const ArincProfile& profile)
    {
        const ArincProfile*& other = m_ids[profile.id];
        if (other != nullptr && other->subId == profile.subId) {
            append(message(profile.fileName, QStringLiteral("uses the same id/sub-id name as ") %
                                                 other->fileName.toHtmlEscaped()));
        }
        other = &profile;
    }

    void checkCode(Owners& owners, std::uint32_t code, const QString& what,
                   const ArincProfile& profile)
    {
        const QString*& owner = owners[code];
        if (owner != nullptr) {
            append(
                message(profile.fileName, what % QString::number(asSigned(code)) % usedBy(*owner)));
        }
        owner = &profile.fileName;
    }

    // Several parameters of one file may lie in one frame.
    void checkIdentifier(const ProfileParameter& parameter, const ArincProfile& profile)
    {
        const QString*& owner = m_identifiers[parameter.id];
        if (owner != nullptr && *owner != profile.fileName) {
            append(message(profile.fileName,
                           QStringLiteral("LCC/FID/DOC ") %
                               QString::number(asSigned(parameter.lcc)) % QLatin1Char('/') %
                               QString::number(asSigned(parameter.fid)) % QLatin1Char('/') %
                               QString::number(asSigned(parameter.doc)) % usedBy(*owner)));
        }
        owner = &profile.fileName;
    }

    void append(const QString& text)
    {
        m_isClean = false;
        appendToCheck(m_report, text);
    }

    QString& m_report;
    std::unordered_map<std::uint32_t, const ArincProfile*> m_ids;
    Owners m_userFids;
    Owners m_userUnits;
    Owners m_identifiers;
    bool m_isClean = true;
};

} // namespace

void appendToCheck(QString& check, const QString& text)
{
    // Not the closing line of a report: one of a profile's may stand in the middle.
    appendToReport(check, text, maxCheckLength,
                   "<b>Check too long. Further messages are left out.</b><br>");
}

bool crossCheck(const std::map<QString, ArincProfile>& profiles, QString& report)
{
    CrossCheck check(report);
    for (const auto& [name, profile] : profiles) {
        check.takeReport(profile);
    }
    for (const auto& [name, profile] : profiles) {
        check.take(profile);
    }
    return check.isClean();
}

QString sameNameMessage(const QString& fileName, const QString& otherFileName)
{
    return message(fileName, QStringLiteral("uses the same profile name as ") %
                                 otherFileName.toHtmlEscaped());
}

} // namespace zul
