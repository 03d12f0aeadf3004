#pragma once

#include "profile/Lru825Document.h"

#include <QString>

struct Lru825Schema;

namespace zul {

/// Reads an LRU document. False if the file is not XML or has another root element; `document` is
/// then empty but for the path and the head of the report. An absent attribute counts as an empty
/// text or 0, and nothing but the length of the name is checked. Unknown names of a value list are
/// entered in the schema's list.
///
/// Deliberate: the transmit period and the latency are read as whole numbers, but written with
/// places after the point, and so are lost when a document is written and read again.
bool readLru825(const QString& path, Lru825Schema& schema, Lru825Document& document);

} // namespace zul
