#pragma once

#include "profile/ProfileReport.h"

#include <QStringList>

#include <string>
#include <vector>

namespace zul::test {

inline std::string errorLine(int line, const std::string& text)
{
    return "Line " + std::to_string(line) + ": " + errorPrefix + " " + text;
}

inline std::string warningLine(int line, const std::string& text)
{
    return "Line " + std::to_string(line) + ": " + warningPrefix + " " + text;
}

/// The messages of a profile's report, without its head and the "<br>" behind each.
inline std::vector<std::string> reportTexts(const QString& result)
{
    const QString separator = QStringLiteral("<br>");
    constexpr int headParts = 3; // file, time, empty
    const QStringList parts = result.split(separator);
    std::vector<std::string> lines;
    for (int i = headParts; i + 1 < parts.size(); ++i) {
        lines.push_back(parts.at(i).toStdString());
    }
    return lines;
}

} // namespace zul::test
