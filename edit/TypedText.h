#pragma once

#include <QString>

#include <optional>

namespace zul {

// What is typed into a field, as a record holds it.

/// The text with blanks in place of line feeds and their like, which a pasted text may have: in a
/// text profile, a record is one line.
QString oneLine(const QString& text);

/// The finite number that the text is; empty if it is none, or not yet.
std::optional<double> typedNumber(const QString& text);

/// The shortest text that reads back as the same number.
QString numberText(double number);

} // namespace zul
