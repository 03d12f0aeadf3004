#include "profile/XmlSink.h"

#include "core/XmlText.h"
#include "profile/ProfileNumbers.h"

#include <QFileInfo>

namespace zul {

XmlSink::XmlSink(const QString& path) : m_file(path), m_writer(&m_text)
{
    m_file.setDirectWriteFallback(true); // a writable file in a directory that is not
}

bool XmlSink::open()
{
    // A device file or a pipe would be replaced by a plain file.
    const QFileInfo target(m_file.fileName());
    if ((target.exists() && !target.isFile()) || !m_file.open(QIODevice::WriteOnly)) {
        return false;
    }
    // The blanks are those that profiles have always had there. With the formatting on from the
    // start an empty line would go before, and the file could not be read.
    m_writer.writeProcessingInstruction(QStringLiteral("xml"),
                                        QStringLiteral("version = \"1.0\" encoding = \"UTF-8\""));
    constexpr int indent = 4;
    m_writer.setAutoFormatting(true);
    m_writer.setAutoFormattingIndent(indent);
    return true;
}

void XmlSink::text(const char* attribute, const QString& value)
{
    m_writer.writeAttribute(QLatin1String(attribute), xmlCharacters(value));
}

void XmlSink::number(const char* attribute, std::int32_t value)
{
    m_writer.writeAttribute(QLatin1String(attribute), QString::number(value));
}

void XmlSink::number(const char* attribute, std::uint32_t value)
{
    number(attribute, asSigned(value));
}

void XmlSink::real(const char* attribute, double value)
{
    m_writer.writeAttribute(QLatin1String(attribute), xmlDouble(value));
}

void XmlSink::pair(const char* attribute, std::uint32_t first, std::uint32_t second)
{
    m_writer.writeAttribute(QLatin1String(attribute), QString::number(asSigned(first)) +
                                                          QLatin1Char('.') +
                                                          QString::number(asSigned(second)));
}

void XmlSink::end()
{
    constexpr int flushAbove = 1024 * 1024; // characters
    m_writer.writeEndElement();
    if (m_text.size() > flushAbove) {
        flush();
    }
}

void XmlSink::flush()
{
    const QByteArray bytes = m_text.toUtf8();
    m_hasFailed = m_hasFailed || m_file.write(bytes) != bytes.size();
    m_text.clear();
}

bool XmlSink::save()
{
    m_writer.writeEndDocument();
    flush();
    return !m_hasFailed && m_file.commit();
}

} // namespace zul
