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

/// Largest file that is read, in bytes: some 30,000 transmit lines. A hostile file of that size
/// takes about half a gigabyte in memory.
inline constexpr qint64 maxXmlBytes = qint64{8} * 1024 * 1024;

/// Reads the file into `document`. What `QDomDocument` cannot parse to the end counts as not
/// loaded: nothing that stands before the error is taken, and `document` is left empty. A document
/// type that declares entities is refused, since a short file of that kind can fill the memory.
/// `reason`, if not null, takes why a file is broken; nothing is printed.
XmlLoad loadXmlFile(const QString& path, QDomDocument& document, QString* reason = nullptr);

/// Remembers that the file's content could not be taken, as `loadXmlFile` does with a broken one:
/// what is written over it later is kept aside first. Main thread only.
void rememberBroken(const QString& path);

/// Writes the document with an indent of 4, in UTF-8. The file is replaced in one step: if anything
/// fails, the old file stays whole and the result is false. Only in a directory in which no file
/// can be made is the file itself written over.
///
/// A file that could not be read is renamed before, to the same name with ".bak" behind it; an
/// older
/// ".bak" goes. If that fails, nothing is written.
bool saveXmlFile(const QDomDocument& document, const QString& path);

} // namespace zul
