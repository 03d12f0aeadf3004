#pragma once

#include <QString>

namespace gui {

/// "%d" for number type 0, "0x%X" for 1, nothing for anything else.
QString numberText(int value, int numberType);

/// The number that `text` stands for, its base taken from its prefix: "0x" is hexadecimal, "0"
/// octal. 0 for text that is no number, "08" for instance, and the largest for one that is too
/// large.
qlonglong wideNumberFromText(const QString& text);

/// The number that `text` stands for, its base taken from its prefix; clamped to what an int holds,
/// and 0 for text that is no number. Hexadecimal text of 32 bits keeps its bits, so that what
/// `numberText` makes of a negative value reads back.
int numberFromText(const QString& text);

} // namespace gui
