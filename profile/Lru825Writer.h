#pragma once

#include "profile/Lru825Document.h"

#include <QString>

struct Lru825Schema;

namespace zul {

/// Writes an LRU document. Nothing is checked; a code that the schema does not know gives an empty
/// text. False if the file could not be written; the old one then stays.
bool writeLru825(const QString& path, const Lru825Schema& schema, const Lru825Document& document);

} // namespace zul
