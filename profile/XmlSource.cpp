#include "profile/XmlSource.h"

#include "core/Console.h"
#include "profile/ProfileNumbers.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace zul {

bool XmlSource::open(const QString& path)
{
    m_file.setFileName(path);
    // Nothing but a file: opening a pipe would wait for its other end.
    if (!QFileInfo(path).isFile() || !m_file.open(QIODevice::ReadOnly) || !isWellFormed()) {
        return false;
    }
    m_text.start();
    m_reader.setDevice(&m_text);
    m_reader.setNamespaceProcessing(false);
    return m_reader.readNextStartElement();
}

bool XmlSource::isAt(const char* element) const
{
    return m_reader.qualifiedName() == QLatin1String(element);
}

int XmlSource::line() const
{
    constexpr qint64 last = std::numeric_limits<int>::max();
    return static_cast<int>(std::min<qint64>(m_reader.lineNumber(), last));
}

bool XmlSource::isWellFormed()
{
    m_text.start();
    QXmlStreamReader reader(&m_text);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        m_text.allow(maxRun);
        reader.readNext();
        if (reader.isStartElement() && m_root.isEmpty()) {
            m_root = reader.qualifiedName().toString();
        }
    }
    if (m_text.isExhausted()) {
        print("%s: no tag in %lld bytes, not read\n", qPrintable(m_file.fileName()),
              static_cast<long long>(maxRun));
    }
    return !reader.hasError();
}

std::optional<QString> xmlRootName(const QString& path)
{
    XmlSource source;
    if (!source.open(path)) {
        return std::nullopt;
    }
    return source.root();
}

QString xmlText(const QXmlStreamAttributes& attributes, const char* name)
{
    return attributes.value(QLatin1String(name)).toString();
}

int xmlNumber(const QXmlStreamAttributes& attributes, const char* name)
{
    return decimalNumber(attributes.value(QLatin1String(name)).toString());
}

std::uint32_t xmlUnsigned(const QXmlStreamAttributes& attributes, const char* name)
{
    return static_cast<std::uint32_t>(xmlNumber(attributes, name));
}

} // namespace zul
