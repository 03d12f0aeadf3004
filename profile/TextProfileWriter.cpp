#include "profile/TextProfileWriter.h"

#include "core/Latin1.h"
#include "core/Version.h"
#include "profile/ProfileNumbers.h"
#include "profile/ProfileReport.h"
#include "profile/ProfileStore.h"
#include "profile/TextProfileSections.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QTextStream>

namespace zul {

namespace {

constexpr char separator = ';';

const char* mark(TextSectionKind kind)
{
    return textSections.at(static_cast<std::size_t>(kind)).mark;
}

void writeHead(QTextStream& stream, const QString& path)
{
    constexpr int rulerLength = 80;
    const QString ruler = QString(rulerLength, QLatin1Char('#'));
    stream << ruler << '\n'
           << "# ARINC-825 profile\n"
           << "# File       : " << path.mid(path.lastIndexOf(QLatin1Char('/')) + 1) << '\n'
           << "# Created by : " << fromLatin1(versionText()) << '\n'
           << "# Created at : " << reportTime() << '\n'
           << ruler << '\n';
}

void writeParameter(QTextStream& stream, const ProfileStore& store,
                    const ProfileParameter& parameter)
{
    const auto channel = store.lccCodes().find(parameter.lcc);
    if (channel != store.lccCodes().end()) {
        stream << channel->second;
    }
    for (const std::uint32_t number :
         {parameter.fid, parameter.doc, parameter.lcl, parameter.pvt, parameter.sid}) {
        stream << separator << asSigned(number);
    }
    stream << separator << asSigned(parameter.sppByte) << '.' << asSigned(parameter.sppBit);
    stream << separator << asSigned(parameter.eppByte) << '.' << asSigned(parameter.eppBit);
    stream << separator << asSigned(parameter.puc) << separator << parameter.typeName;
    stream << separator << parameter.nme << separator << parameter.pun;
    stream << separator << parameter.min << separator << parameter.max;
    stream << separator << parameter.upr << separator << parameter.notes << '\n';
}

void writeEnums(QTextStream& stream, const ArincProfile& profile)
{
    stream << mark(TextSectionKind::Enum) << '\n';
    for (const auto& [name, enumeration] : profile.enums) {
        stream << "#\n# " << name << "\n#\n";
        for (const auto& [value, entry] : enumeration.values) {
            stream << name << separator << value << separator << entry.label << '\n';
        }
        stream << '\n';
    }
    stream << '\n';
}

void writeParameters(QTextStream& stream, const ProfileStore& store, const ArincProfile& profile)
{
    stream << mark(TextSectionKind::Parameter) << '\n';
    for (const auto& [fid, group] : profile.fids) {
        stream << "#\n# " << group.name << " (FID " << asSigned(fid) << ")\n#\n";
        for (const auto& [serial, parameter] : group.parameters) {
            writeParameter(stream, store, parameter);
        }
        stream << '\n';
    }
}

} // namespace

bool writeTextProfile(const QString& path, const ProfileStore& store, const ArincProfile& profile)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(true); // a writable file in a directory that is not
    // A device file or a pipe would be replaced by a plain file.
    const QFileInfo target(path);
    if ((target.exists() && !target.isFile()) ||
        !file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return false;
    }
    QTextStream stream(&file);
    writeHead(stream, path);
    // Deliberate: a header that was read ends in a line feed of its own, so that two empty lines
    // follow it.
    stream << mark(TextSectionKind::Header) << '\n' << profile.header << "\n\n";
    stream << mark(TextSectionKind::Profile) << "\n#\n"
           << profile.name << separator << asSigned(profile.id) << separator
           << asSigned(profile.subId) << "\n\n";
    stream << mark(TextSectionKind::Fid) << '\n';
    for (const auto& [code, fid] : profile.userFids) {
        stream << fid.name << separator << asSigned(code) << '\n';
    }
    stream << '\n' << mark(TextSectionKind::Unit) << '\n';
    for (const auto& [code, unit] : profile.userUnits) {
        stream << unit.name << separator << asSigned(code) << '\n';
    }
    stream << '\n';
    writeEnums(stream, profile);
    writeParameters(stream, store, profile);
    stream.flush(); // to the file itself, so that the status tells of a full disk
    return stream.status() == QTextStream::Ok && file.commit();
}

} // namespace zul
