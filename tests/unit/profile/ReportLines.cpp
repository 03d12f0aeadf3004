#include "ReportLines.h"

#include <ostream>

namespace zul::test {

namespace {

const QString lineBreak = QStringLiteral("<br>");
const QString warning = QStringLiteral(": <b><font color=#ff9900>Warning :</b>  ");
const QString error = QStringLiteral(": <b><font color=#ff0000>Error   :</b>  ");

} // namespace

QStringList reportLines(const QString& report)
{
    constexpr int headLines = 3;
    QStringList lines = report.split(lineBreak).mid(headLines);
    if (!lines.isEmpty()) {
        lines.removeLast(); // behind the last line break
    }
    for (QString& line : lines) {
        if (line.startsWith(QStringLiteral("Line "))) {
            line = line.mid(5);
            line.replace(warning, QStringLiteral(" Warning: "));
            line.replace(error, QStringLiteral(" Error: "));
        }
    }
    return lines;
}

} // namespace zul::test

void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}

void PrintTo(const QStringList& texts, std::ostream* stream)
{
    *stream << texts.join(QStringLiteral("\n")).toStdString();
}
