#pragma once

#include "profile/XmlTextDevice.h"

#include <QFile>
#include <QString>
#include <QXmlStreamReader>

#include <cstdint>
#include <optional>

namespace zul {

/// An XML file that is read element by element, so that a large one takes little memory. It is
/// walked to its end before: nothing is taken from a file that is not well-formed.
class XmlSource
{
public:
    /// Most bytes of one tag, text, comment or the like, give or take a block of reading. What is
    /// longer is no profile, and would have to be held in memory as a whole.
    static constexpr qint64 maxRun = qint64{64} * 1024 * 1024;

    XmlSource() : m_text(m_file) {}

    /// To be called once. False if the file cannot be opened, is not well-formed, has a document
    /// type with a part of its own (by entities or default values a short file of that kind can
    /// fill the memory), has a tag of more attributes than `XmlGuard` lets pass, or has more than
    /// `maxRun` bytes without a tag. Else it stands at the start of the root element.
    bool open(const QString& path);

    /// Name of the root element, with its prefix if it has one.
    const QString& root() const { return m_root; }

    /// Goes to the start of the next child of the element that it stands in. False if there is
    /// none: it then stands at that element's end.
    bool nextChild() { return m_reader.readNextStartElement(); }
    /// Whether it stands at an element of that name.
    bool isAt(const char* element) const;
    /// Goes to the end of the element whose start it stands at.
    void skip() { m_reader.skipCurrentElement(); }

    /// Whether the file could be read on to where it stands; false if it has changed since `open`.
    bool isWhole() const { return !m_reader.hasError(); }

    /// The attributes of the element whose start it stands at.
    QXmlStreamAttributes attributes() const { return m_reader.attributes(); }
    /// The line in which the start tag ends that it stands at; the first line is 1.
    int line() const;

private:
    bool isWellFormed();

    QFile m_file;
    XmlTextDevice m_text;
    QXmlStreamReader m_reader;
    QString m_root;
};

/// The name of the root element of an XML file; nothing if `XmlSource` does not open it.
std::optional<QString> xmlRootName(const QString& path);

/// An attribute's text; empty if it is absent.
QString xmlText(const QXmlStreamAttributes& attributes, const char* name);

/// A decimal attribute; 0 if it is absent or no whole number.
int xmlNumber(const QXmlStreamAttributes& attributes, const char* name);

/// The same as an unsigned number of 32 bits; negative ones wrap around.
std::uint32_t xmlUnsigned(const QXmlStreamAttributes& attributes, const char* name);

} // namespace zul
