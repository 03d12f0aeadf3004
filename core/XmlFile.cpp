#include "core/XmlFile.h"

#include "core/Console.h"

#include <QFile>
#include <QSaveFile>
#include <QTextStream>
#include <QXmlStreamReader>

namespace zul {

namespace {

// The reason why the text cannot be taken, or an empty string.
QString refusal(const QByteArray& text)
{
    QXmlStreamReader reader(text);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > maxXmlDepth) {
                return QStringLiteral("nested deeper than %1 elements").arg(maxXmlDepth);
            }
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        case QXmlStreamReader::DTD:
            return QStringLiteral("it has a document type");
        default:
            break;
        }
    }
    return reader.hasError() ? reader.errorString() : QString();
}

XmlLoad broken(const QString& path, const QString& reason)
{
    print("Cannot read <%s>: %s\n", path.toLocal8Bit().constData(),
          reason.toLocal8Bit().constData());
    return XmlLoad::Broken;
}

} // namespace

XmlLoad loadXmlFile(const QString& path, QDomDocument& document)
{
    document = QDomDocument();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return XmlLoad::Absent;
    }
    // One byte more than allowed tells a file that is too large, also where size() knows nothing.
    const QByteArray text = file.read(maxXmlBytes + 1);
    if (text.size() > maxXmlBytes) {
        return broken(path, QStringLiteral("larger than %1 bytes").arg(maxXmlBytes));
    }
    const QString reason = refusal(text);
    if (!reason.isEmpty()) {
        return broken(path, reason);
    }
    QString error;
    if (!document.setContent(text, &error)) {
        document = QDomDocument();
        return broken(path, error);
    }
    return XmlLoad::Loaded;
}

bool saveXmlFile(const QDomDocument& document, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    constexpr int indent = 4;
    stream << document.toString(indent);
    stream.flush();
    if (stream.status() != QTextStream::Ok) {
        file.cancelWriting();
    }
    return file.commit();
}

void keepAside(const QString& path)
{
    const QString aside = path + QStringLiteral(".bak");
    QFile::remove(aside);
    if (QFile::rename(path, aside)) {
        print("Kept <%s>\n", aside.toLocal8Bit().constData());
    }
}

} // namespace zul
