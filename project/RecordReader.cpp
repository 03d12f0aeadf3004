#include "project/RecordReader.h"

#include "core/XmlHandler.h"

#include <algorithm>
#include <limits>

using Xml = zul::XmlHandler;

RecordReader::RecordReader(const QDomElement& element) : m_attributes(element.attributes()) {}

void RecordReader::field(const char* name, bool& value, bool missing)
{
    value = Xml::readBool(m_attributes, QString::fromLatin1(name), missing);
}

void RecordReader::field(const char* name, std::int32_t& value, std::int32_t missing)
{
    value = Xml::readInt(m_attributes, QString::fromLatin1(name), missing);
}

void RecordReader::field(const char* name, std::uint32_t& value, std::uint32_t missing)
{
    value = static_cast<std::uint32_t>(
        Xml::readInt(m_attributes, QString::fromLatin1(name), static_cast<std::int32_t>(missing)));
}

void RecordReader::field(const char* name, double& value, double missing)
{
    value = Xml::readDouble(m_attributes, QString::fromLatin1(name), missing);
}

void RecordReader::field(const char* name, float& value, float missing)
{
    constexpr double largest = std::numeric_limits<float>::max();
    const double read =
        Xml::readDouble(m_attributes, QString::fromLatin1(name), static_cast<double>(missing));
    value = static_cast<float>(std::clamp(read, -largest, largest));
}

void RecordReader::field(const char* name, QString& value, const QString& missing)
{
    value = Xml::readString(m_attributes, QString::fromLatin1(name), missing);
}
