#pragma once

#include <QSaveFile>
#include <QString>
#include <QXmlStreamWriter>

#include <cstdint>

namespace zul {

/// An XML file that is written element by element: in UTF-8, with an indent of 4 and the attributes
/// in the order in which they are given. The file is replaced in one step by `save`; if anything
/// fails, or without `save`, the old one stays. Only in a directory in which no file can be made
/// is the file itself written over.
class XmlSink
{
public:
    explicit XmlSink(const QString& path);

    /// Writes the head of the document. False if the file cannot be opened; nothing but the
    /// destructor may be called then.
    [[nodiscard]] bool open();

    /// Opens an element in the one that is open. Its attributes come before its children.
    void start(const char* element) { m_writer.writeStartElement(QLatin1String(element)); }
    /// Closes the element that was opened last.
    void end();

    /// Characters that XML cannot hold are dropped.
    void text(const char* attribute, const QString& value);
    void number(const char* attribute, std::int32_t value);
    /// What does not fit into 31 bits is written as the negative number that it was read from.
    void number(const char* attribute, std::uint32_t value);
    /// Twelve places after a decimal point.
    void real(const char* attribute, double value);
    /// "first.second", for positions and profile ids.
    void pair(const char* attribute, std::uint32_t first, std::uint32_t second);

    /// Closes what is open and puts the file in its place. False if it could not be written.
    bool save();

private:
    void flush();

    QSaveFile m_file;
    QString m_text; ///< written so far, but not to the file: converting it at once takes less time
    QXmlStreamWriter m_writer;
    bool m_hasFailed = false; ///< the file did not take all of it
};

} // namespace zul
