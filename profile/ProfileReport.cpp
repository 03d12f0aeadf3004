#include "profile/ProfileReport.h"

#include "core/Clock.h"

#include <QDateTime>
#include <QLocale>

namespace zul {

namespace {

// What a message quotes of a text that somebody may have made a million letters long.
constexpr int maxQuotedLength = 1000;

} // namespace

bool appendToReport(QString& report, const QString& message, int maxLength, const char* closingLine)
{
    const QLatin1String closing(closingLine);
    if (report.endsWith(closing)) {
        return false;
    }
    if (report.size() + message.size() > maxLength) {
        report += closing;
        return false;
    }
    report += message;
    return true;
}

QString reportTime()
{
    const QDateTime now = QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(wallClock() * 1e3));
    return QLocale::c().toString(now, QStringLiteral("dd.MM.yyyy hh:mm:ss"));
}

QString reportHead(const QString& fileName)
{
    return QStringLiteral("Profile : %1<br>Time    : %2<br><br>")
        .arg(fileName.toHtmlEscaped(), reportTime());
}

QByteArray reportText(const QString& text)
{
    if (text.size() > maxQuotedLength) {
        return (text.left(maxQuotedLength) + QStringLiteral("...")).toHtmlEscaped().toUtf8();
    }
    return text.toHtmlEscaped().toUtf8();
}

ProfileReport::ProfileReport(const QString& fileName, bool& valid, QString& result)
    : m_valid(valid), m_result(result)
{
    m_valid = true;
    m_result = reportHead(fileName);
}

void ProfileReport::error(int line, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    add(line, errorPrefix, format, arguments);
    va_end(arguments);
}

void ProfileReport::warning(int line, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    add(line, warningPrefix, format, arguments);
    va_end(arguments);
}

void ProfileReport::add(int line, const char* prefix, const char* format, va_list arguments)
{
    m_valid = false;
    if (m_full) {
        return;
    }
    const QString message = QStringLiteral("Line ") + QString::number(line) + QStringLiteral(": ") +
                            QLatin1String(prefix) + QLatin1Char(' ') +
                            QString::vasprintf(format, arguments) + QStringLiteral("<br>");
    m_full = !appendToReport(m_result, message);
}

} // namespace zul
