#pragma once

#include <QString>

namespace zul {

/// The text without the characters that XML 1.0 cannot hold: a file with them could not be read
/// again. What XML escapes stays as it is.
QString xmlCharacters(const QString& text);

/// Twelve places after a decimal point, whatever the locale: "%.12f".
QString xmlDouble(double value);

} // namespace zul
