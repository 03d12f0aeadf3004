#pragma once

#include <QDomDocument>
#include <QString>

namespace zul {

/// How the reading of an XML file went.
enum class XmlLoad {
    Loaded,
    Absent, ///< no such file, or it cannot be opened
    Broken  ///< not XML, nested too deeply, too large, or with a document type of its own entities
};

/// Deepest nesting that is read; far beyond every file of this program. `QDomDocument` frees its
/// tree by recursion, so that a hostile file could exhaust the stack.
inline constexpr int maxXmlDepth = 200;

/// Largest file that is read, in bytes. In memory a document takes some ten times its file.
inline constexpr qint64 maxXmlBytes = qint64{64} * 1024 * 1024;

/// Reads the file into `document`. What `QDomDocument` cannot parse to the end counts as not
/// loaded: nothing that stands before the error is taken, and `document` is left empty. A document
/// type that declares entities is refused, since a short file of that kind can fill the memory.
/// `reason`, if not null, takes why a file is broken; nothing is printed.
XmlLoad loadXmlFile(const QString& path, QDomDocument& document, QString* reason = nullptr);

/// Writes the document with an indent of 4, in UTF-8. The file is replaced in one step: if anything
/// fails, the old file stays whole and the result is false. Only in a directory in which no file
/// can be made is the file itself written over.
bool saveXmlFile(const QDomDocument& document, const QString& path);

/// Renames a file that could not be read to the same name with ".bak" behind it, before it is
/// written over. An older ".bak" goes.
void keepAside(const QString& path);

} // namespace zul
