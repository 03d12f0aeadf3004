#pragma once

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
    /// Most bytes between two tags. What is longer is no profile, and would have to be held in
    /// memory as a whole.
    static constexpr qint64 maxRun = qint64{64} * 1024 * 1024;

    /// False if the file cannot be opened, is not well-formed, declares entities of its own (a
    /// short file of that kind can fill the memory), or has more than `maxRun` bytes without a tag.
    bool open(const QString& path);

    /// Name of the root element.
    const QString& root() const { return m_root; }

    /// Stands on the start of the root element after `open`.
    QXmlStreamReader& reader() { return m_reader; }

private:
    bool hasBoundedRuns();
    bool isWellFormed();

    QFile m_file;
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
