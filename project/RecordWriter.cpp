#include "project/RecordWriter.h"

#include "core/XmlHandler.h"

using Xml = zul::XmlHandler;

RecordWriter::RecordWriter(QDomDocument& document, const QDomElement& element)
    : m_document(document), m_element(element)
{
}

void RecordWriter::field(const char* name, bool value, bool)
{
    Xml::writeInt(m_document, m_element, QString::fromLatin1(name), value ? 1 : 0);
}

void RecordWriter::field(const char* name, std::int32_t value, std::int32_t)
{
    Xml::writeInt(m_document, m_element, QString::fromLatin1(name), value);
}

void RecordWriter::field(const char* name, std::uint32_t value, std::uint32_t)
{
    Xml::writeInt(m_document, m_element, QString::fromLatin1(name),
                  static_cast<std::int32_t>(value));
}

void RecordWriter::field(const char* name, double value, double)
{
    Xml::writeDouble(m_document, m_element, QString::fromLatin1(name), value);
}

void RecordWriter::field(const char* name, float value, float)
{
    Xml::writeDouble(m_document, m_element, QString::fromLatin1(name), static_cast<double>(value));
}

void RecordWriter::field(const char* name, const QString& value, const QString&)
{
    Xml::writeString(m_document, m_element, QString::fromLatin1(name), value);
}
