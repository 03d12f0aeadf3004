#pragma once

#include <QString>
#include <QStringList>

#include <iosfwd>

namespace zul::test {

/// The messages of a report on a profile, without its head, one a line and without their tags:
/// "5 Error: FID 200 invalid. Range must be in [0..127]". What is no such message is given as it
/// stands.
QStringList reportLines(const QString& report);

} // namespace zul::test

// What a failed test shows.
void PrintTo(const QString& text, std::ostream* stream);
void PrintTo(const QStringList& texts, std::ostream* stream);
