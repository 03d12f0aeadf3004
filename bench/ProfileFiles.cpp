#include "bench/ProfileFiles.h"

#include <QFile>
#include <QTextStream>

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

// All function codes here are named by both versions of the standard.
constexpr int fids[] = {4, 8, 12, 16, 20, 24, 28, 32, 36, 44, 48, 52, 56, 60, 64, 68};

Place place(int parameter, int number)
{
    const int frame = number * profileBase + parameter / parametersInFrame;
    return {fids[frame / docCount % 16], frame % docCount, parameter % parametersInFrame * 2 + 1};
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
    stream << "<profile>\nProfile " << number << ';' << number << ";0\n<parameter>\n";
    for (int i = 0; i < parameters; ++i) {
        const Place at = place(i, number);
        stream << "NOC;" << at.fid << ';' << at.doc << ";0;0;0;" << at.lsbByte << ".0;"
               << at.lsbByte - 1 << ".7;19;SHORT;Parameter Number " << i
               << ";m/s;-100;100;50;Note on number " << i << '\n';
    }
}

void writeXml(QTextStream& stream, int parameters, int number)
{
    stream << "<Arinc825Profile version=\"1.0\" name=\"Profile " << number << "\" id=\"" << number
           << ".0\" comment=\"\"><ParameterList>\n";
    int fid = -1;
    for (int i = 0; i < parameters; ++i) {
        const Place at = place(i, number);
        if (at.fid != fid) {
            stream << (fid < 0 ? "" : "</Sfid>") << "<Sfid name=\"\" id=\"" << at.fid << "\">\n";
            fid = at.fid;
        }
        stream << "<Parameter lcc=\"NOC\" doc=\"" << at.doc << "\" lcl=\"0\" pvt=\"0\" spp=\""
               << at.lsbByte << ".0\" epp=\"" << at.lsbByte - 1
               << ".7\" puc=\"19\" pua=\"m/s\" dtn=\"SHORT\" nme=\"Parameter Number " << i
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
