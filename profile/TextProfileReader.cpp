#include "profile/TextProfileReader.h"

#include "profile/ComposedId.h"
#include "profile/PositionCheck.h"
#include "profile/ProfileChecks.h"
#include "profile/ProfileNumbers.h"
#include "profile/ProfileStore.h"
#include "profile/TextProfileSections.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>

namespace zul {

namespace {

constexpr int headerReportLength = 256;
// Headers are a few lines; this bounds what a hostile file can make of them.
constexpr int maxHeaderLength = 16 * 1024 * 1024;

// Lines of a text, each cut at `maxProfileLineLength`, so that a file without line feeds takes no
// more memory than others.
class LineSource
{
public:
    explicit LineSource(QIODevice& device) : m_stream(&device) {}

    bool next(QString& line)
    {
        line.resize(0);
        bool hasLine = false;
        while (m_position < m_chunk.size() || fill()) {
            hasLine = true;
            const int end = m_chunk.indexOf(QLatin1Char('\n'), m_position);
            const int stop = end >= 0 ? end : m_chunk.size();
            const int space = maxProfileLineLength - line.size();
            line.append(m_chunk.midRef(m_position, qMin(stop - m_position, space)));
            m_position = stop + 1;
            if (end >= 0) {
                return true;
            }
        }
        return hasLine;
    }

private:
    bool fill()
    {
        constexpr qint64 chunkLength = qint64{64} * 1024;
        m_chunk = m_stream.read(chunkLength);
        m_position = 0;
        return !m_chunk.isEmpty();
    }

    QTextStream m_stream;
    QString m_chunk;
    int m_position = 0;
};

class Reader
{
public:
    Reader(ProfileStore& store, ArincProfile& profile, ProfileReport& report)
        : m_store(store),
          m_profile(profile),
          m_report(report),
          m_checks(store, store.fidTable825Part2(), profile, report)
    {
    }

    void take(const QString& text)
    {
        ++m_line;
        const QString line = text.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            return;
        }
        const auto mark = std::find_if(
            textSections.begin(), textSections.end(),
            [&line](const TextSection& section) { return line == QLatin1String(section.mark); });
        if (mark != textSections.end()) {
            m_section = &*mark;
        } else if (m_section != nullptr) {
            statement(line);
        }
    }

private:
    void statement(const QString& line)
    {
        if (m_section->kind == TextSectionKind::Header) {
            header(line);
            return;
        }
        const int tokenCount = line.count(QLatin1Char(';')) + 1;
        if (tokenCount != m_section->tokens) {
            m_report.error(m_line, "Syntax Error, wrong number of tokens %d", tokenCount);
            return;
        }
        const QStringList tokens = line.split(QLatin1Char(';'));
        switch (m_section->kind) {
        case TextSectionKind::Header:
            break;
        case TextSectionKind::Profile:
            profile(tokens);
            break;
        case TextSectionKind::Fid:
            userFid(tokens);
            break;
        case TextSectionKind::Unit:
            userUnit(tokens);
            break;
        case TextSectionKind::Enum:
            enumeration(tokens);
            break;
        case TextSectionKind::Parameter:
            parameter(tokens);
            break;
        }
    }

    void header(const QString& line)
    {
        if (m_profile.header.size() < maxHeaderLength) {
            m_profile.header += line + QLatin1Char('\n');
        }
        if (m_profile.header.size() >= headerReportLength) {
            m_report.warning(m_line, "Header has more than 255 characters");
        }
    }

    void profile(const QStringList& tokens)
    {
        m_profile.name = tokens.at(0);
        m_profile.id = number(tokens.at(1));
        m_profile.subId = number(tokens.at(2));
        m_checks.checkProfileName(m_line);
        m_checks.checkProfileIds(m_line);
    }

    void userFid(const QStringList& tokens)
    {
        ProfileUserFid fid;
        fid.name = tokens.at(0);
        fid.code = number(tokens.at(1));
        m_checks.addUserFid(m_line, fid);
    }

    void userUnit(const QStringList& tokens)
    {
        ProfileUserUnit unit;
        unit.name = tokens.at(0);
        unit.code = number(tokens.at(1));
        m_checks.addUserUnit(m_line, unit);
    }

    void enumeration(const QStringList& tokens)
    {
        const QString& name = tokens.at(0);
        auto found = m_profile.enums.find(name);
        if (found == m_profile.enums.end()) {
            ProfileEnum made;
            made.enumId = m_store.nextEnumId();
            made.name = name;
            found = m_profile.enums.emplace(name, made).first;
        }
        m_checks.addEnumValue(m_line, found->second, decimalNumber(tokens.at(1)), tokens.at(2));
    }

    void parameter(const QStringList& tokens)
    {
        ProfileParameter parameter;
        parameter.parameterKind = ParameterKind::Arinc825;
        identifier(tokens, parameter);
        m_checks.setDataType(m_line, tokens.at(TextColumn::Dtn), parameter);
        setPosition(tokens.at(TextColumn::Spp), parameter.sppByte, parameter.sppBit);
        setPosition(tokens.at(TextColumn::Epp), parameter.eppByte, parameter.eppBit);
        checkPositions(parameter, m_line, m_report);
        parameter.puc = number(tokens.at(TextColumn::Puc));
        m_checks.checkPuc(m_line, parameter);
        parameter.nme = tokens.at(TextColumn::Nme);
        m_checks.checkNme(m_line, parameter);
        parameter.pun = tokens.at(TextColumn::Pun);
        m_checks.checkPun(m_line, parameter);
        parameter.min = realNumber(tokens.at(TextColumn::Min));
        parameter.max = realNumber(tokens.at(TextColumn::Max));
        m_checks.checkRange(m_line, parameter);
        parameter.upr = decimalNumber(tokens.at(TextColumn::Upr));
        m_checks.checkUpr(m_line, parameter);
        parameter.notes = tokens.at(TextColumn::Nts);
        m_checks.checkNotes(m_line, parameter);
        parameter.id = textProfileId(parameter);
        m_checks.file(m_line, parameter);
    }

    void identifier(const QStringList& tokens, ProfileParameter& parameter)
    {
        m_checks.setChannel(m_line, tokens.at(TextColumn::Lcc), parameter);
        parameter.fid = number(tokens.at(TextColumn::Fid));
        m_checks.checkFid(m_line, parameter);
        parameter.doc = number(tokens.at(TextColumn::Doc));
        parameter.dfid = dfidOfNid(parameter.doc);
        m_checks.checkDoc(m_line, parameter);
        parameter.lcl = number(tokens.at(TextColumn::Lcl));
        parameter.pvt = number(tokens.at(TextColumn::Pvt));
        m_checks.checkLclPvt(m_line, parameter);
        parameter.sid = number(tokens.at(TextColumn::Sid));
        m_checks.checkSid(m_line, parameter, ProfileChecks::maxTextSid);
    }

    static std::uint32_t number(const QString& token)
    {
        return static_cast<std::uint32_t>(decimalNumber(token));
    }

    ProfileStore& m_store;
    ArincProfile& m_profile;
    ProfileReport& m_report;
    ProfileChecks m_checks;
    const TextSection* m_section = nullptr;
    int m_line = 0;
};

} // namespace

bool readTextProfile(const QString& path, ProfileStore& store, ArincProfile& profile)
{
    profile.fileName = path;
    ProfileReport report(path, profile.valid, profile.result);
    QFile file(path);
    // Nothing but a file: opening a pipe would wait for its other end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    profile.clearContent();
    LineSource lines(file);
    Reader reader(store, profile, report);
    QString line;
    while (lines.next(line)) {
        reader.take(line);
    }
    return true;
}

} // namespace zul
