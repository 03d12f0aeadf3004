#pragma once

#include "core/Console.h"

#include <QByteArray>
#include <QString>

#include <cstdarg>

namespace zul {

/// Prefixes of a message in the reports on profiles, in HTML. Both kinds make a profile invalid.
inline constexpr const char* warningPrefix = "<b><font color=#ff9900>Warning :</b> ";
inline constexpr const char* errorPrefix = "<b><font color=#ff0000>Error   :</b> ";

/// Longest report, in characters. Beyond it a hostile file would fill the memory, and no window
/// could show it; a closing line says that more was found.
inline constexpr int maxReportLength = 1024 * 1024;

/// Last line of a report that is full.
inline constexpr const char* reportClosing =
    "<b>Report too long. Further messages are left out.</b><br>";

/// Appends a message to a report. False if it does not fit: the report gets the closing line, and
/// takes nothing any more. Reports that hold others need a closing line of their own.
bool appendToReport(QString& report, const QString& message, int maxLength = maxReportLength,
                    const char* closingLine = reportClosing);

/// The time of day as reports and text profiles tell it.
QString reportTime();

/// The first lines of every report: file name and time.
QString reportHead(const QString& fileName);

/// The text for the use in a report: what looks like a tag stays text, and what is very long is
/// cut.
QByteArray reportText(const QString& text);

/// Collects the messages of one load in a profile's `result` and clears its `valid`.
class ProfileReport
{
public:
    /// Both belong to the caller; `valid` becomes true, and `result` the head of the report.
    ProfileReport(const QString& fileName, bool& valid, QString& result);

    /// "Line %d: %s " with the line and the prefix goes before the text, "<br>" behind it. Texts
    /// among the arguments are UTF-8, from `reportText`.
    void error(int line, const char* format, ...) ZUL_PRINTF(3, 4);
    void warning(int line, const char* format, ...) ZUL_PRINTF(3, 4);

private:
    void add(int line, const char* prefix, const char* format, va_list arguments);

    bool& m_valid;
    QString& m_result;
    bool m_full = false;
};

} // namespace zul
