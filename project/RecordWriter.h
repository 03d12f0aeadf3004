#pragma once

#include <QDomDocument>
#include <QDomElement>
#include <QString>

#include <cstdint>

/// Writes the fields of a record as attributes of one element; the counterpart of `RecordReader`.
/// The last argument of each operation is only of use there.
class RecordWriter
{
public:
    RecordWriter(QDomDocument& document, const QDomElement& element);

    void field(const char* name, bool value, bool missing = false);
    void field(const char* name, std::int32_t value, std::int32_t missing = 0);
    void field(const char* name, std::uint32_t value, std::uint32_t missing = 0);
    void field(const char* name, double value, double missing = 0.0);
    void field(const char* name, float value, float missing = 0.0F);
    void field(const char* name, const QString& value, const QString& missing = QString());

private:
    QDomDocument& m_document;
    QDomElement m_element;
};
