#include "bench/ProfileFiles.h"

#include <QFile>
#include <QTextStream>

#include <array>
#include <functional>

namespace bench {

namespace {

constexpr int parametersInFrame = 4;
constexpr int docCount = 16384;
constexpr int profileBase = 12'500; // frames of 50,000 parameters

struct Place
{
    int fid;
    int doc;
    int lsbByte; ///< SPP; EPP is the byte before
};

// The first half is of a profile's own, the second named by both versions of the standard.
constexpr std::array<int, 16> fids{1, 2, 3, 5, 6, 7, 41, 42, 4, 8, 12, 16, 20, 24, 28, 32};
constexpr std::size_t userFids = 8;

Place place(int parameter, int number)
{
    const int frame = number * profileBase + parameter / parametersInFrame;
    return {fids.at(static_cast<std::size_t>(frame / docCount)), frame % docCount,
            parameter % parametersInFrame * 2 + 1};
}

// Makes the file unless it is there.
QString file(const QString& path, const std::function<void(QTextStream&)>& write)
{
    QFile file(path);
    if (!file.exists() && file.open(QIODevice::WriteOnly)) {
        QTextStream stream(&file);
        write(stream);
    }
    return path;
}

void writeText(QTextStream& stream, int parameters, int number)
{
    stream << "<profile>\nProfile " << number << ';' << number << ";0\n<unit>\nspeed;100\n<fid>\n";
    for (std::size_t i = 0; i < userFids; ++i) {
        stream << "Function;" << fids.at(i) << '\n';
    }
    stream << "<parameter>\n";
    for (int i = 0; i < parameters; ++i) {
        const Place at = place(i, number);
        stream << "NOC;" << at.fid << ';' << at.doc << ";0;0;0;" << at.lsbByte << ".0;"
               << at.lsbByte - 1 << ".7;100;SHORT;Parameter Number " << i
               << ";m/s;-100;100;50;Note on number " << i << '\n';
    }
}

void writeXml(QTextStream& stream, int parameters, int number)
{
    stream
        << "<Arinc825Profile version=\"1.0\" name=\"Profile " << number << "\" id=\"" << number
        << ".0\" comment=\"\"><UnitList><Unit name=\"speed\" code=\"100\"/></UnitList>\n<FidList>";
    for (std::size_t i = 0; i < userFids; ++i) {
        stream << "<Fid name=\"Function\" code=\"" << fids.at(i) << "\"/>";
    }
    stream << "</FidList>\n<ParameterList>\n";
    int fid = -1;
    for (int i = 0; i < parameters; ++i) {
        const Place at = place(i, number);
        if (at.fid != fid) {
            stream << (fid < 0 ? "" : "</Sfid>") << "<Sfid name=\"\" id=\"" << at.fid << "\">\n";
            fid = at.fid;
        }
        stream << "<Parameter lcc=\"NOC\" doc=\"" << at.doc << "\" lcl=\"0\" pvt=\"0\" spp=\""
               << at.lsbByte << ".0\" epp=\"" << at.lsbByte - 1
               << ".7\" puc=\"100\" pua=\"m/s\" dtn=\"SHORT\" nme=\"Parameter Number " << i
               << "\" min=\"-100\" max=\"100\" upt=\"50\" lat=\"0\" rci=\"0\" nts=\"Note on number "
               << i << "\"/>\n";
    }
    stream << "</Sfid></ParameterList></Arinc825Profile>\n";
}

} // namespace

QString ProfileFiles::text(int parameters, int number)
{
    return file(m_directory.filePath(QStringLiteral("%1-%2.pro").arg(parameters).arg(number)),
                [&](QTextStream& stream) { writeText(stream, parameters, number); });
}

QString ProfileFiles::xml(int parameters, int number)
{
    return file(m_directory.filePath(QStringLiteral("%1-%2.xml").arg(parameters).arg(number)),
                [&](QTextStream& stream) { writeXml(stream, parameters, number); });
}

} // namespace bench
