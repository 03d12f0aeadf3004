#include "profile/XmlSource.h"

#include "core/Console.h"
#include "profile/ProfileNumbers.h"

#include <QFileInfo>

#include <algorithm>

namespace zul {

bool XmlSource::open(const QString& path)
{
    m_file.setFileName(path);
    // Nothing but a file: opening a pipe would wait for its other end.
    if (!QFileInfo(path).isFile() || !m_file.open(QIODevice::ReadOnly) || !hasBoundedRuns() ||
        !isWellFormed()) {
        return false;
    }
    m_file.seek(0);
    m_reader.setDevice(&m_file);
    m_reader.setNamespaceProcessing(false);
    return m_reader.readNextStartElement();
}

bool XmlSource::hasBoundedRuns()
{
    constexpr qint64 blockSize = 1024 * 1024;
    qint64 run = 0;
    while (!m_file.atEnd()) {
        const QByteArray block = m_file.read(blockSize);
        if (block.isEmpty()) {
            return false; // reading failed
        }
        const int first = block.indexOf('<');
        run += first >= 0 ? first : block.size();
        if (run > maxRun) {
            print("%s: no tag in %lld bytes, not read\n", qPrintable(m_file.fileName()),
                  static_cast<long long>(maxRun));
            return false;
        }
        if (first >= 0) {
            run = block.size() - block.lastIndexOf('<');
        }
    }
    return true;
}

bool XmlSource::isWellFormed()
{
    m_file.seek(0);
    QXmlStreamReader reader(&m_file);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isDTD() && !reader.entityDeclarations().isEmpty()) {
            return false;
        }
        if (reader.isStartElement() && m_root.isEmpty()) {
            m_root = reader.name().toString();
        }
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
