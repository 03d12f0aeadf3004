#pragma once

#include <QDomElement>
#include <QString>

#include <cstdint>

/// Reads the attributes of one element into the fields of a record. Together with `RecordWriter`,
/// which has the same operations, one list of fields serves both directions.
class RecordReader
{
public:
    explicit RecordReader(const QDomElement& element);

    /// Each sets `value` from the attribute, or to `missing` if there is none.
    void field(const char* name, bool& value, bool missing = false);
    void field(const char* name, std::int32_t& value, std::int32_t missing = 0);
    void field(const char* name, std::uint32_t& value, std::uint32_t missing = 0);
    void field(const char* name, double& value, double missing = 0.0);
    void field(const char* name, float& value, float missing = 0.0F);
    void field(const char* name, QString& value, const QString& missing = QString());

private:
    QDomNamedNodeMap m_attributes;
};
