#pragma once

#include "project/ObjectTransmit.h"

#include <QString>

#include <cstddef>

/// The configuration file of the sister tool ZORB: XML, whose root element holds one `CanMsg` for
/// each message.
namespace transmitimport {

inline constexpr const char* fileDialogTitle = "Open ZORB Configuration";
inline constexpr const char* fileDialogFilter = "ZORB File (*.zul);;All Files (*.*)";

/// Most messages that are read of one file: a table of many more would be of no use to anybody.
inline constexpr std::size_t maxLines = 10'000;

/// Puts the messages of the file in place of `lines`. Whatever the root element is, its `CanMsg`
/// children count and all else is skipped; values that cannot be read become 0, a name that is
/// empty "NoName". A file without messages leaves no lines.
///
/// False, with `lines` as they were, only if there is nothing to read from: no such file, not
/// well-formed, or XML that `zul::XmlSource` does not let pass because it could do harm.
bool readZorbConfiguration(const QString& path, ObjectTransmit::Lines& lines);

} // namespace transmitimport
