#include "core/XmlFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextStream>
#include <QXmlInputSource>

#include <set>

namespace zul {

namespace {

constexpr int endOfText = -1;

// The place behind the next `mark`, or endOfText.
int behind(const QString& text, QLatin1String mark, int from)
{
    const int found = text.indexOf(mark, from);
    return found < 0 ? endOfText : found + mark.size();
}

// The place of the next of two characters outside quotes, or endOfText.
int findOutsideQuotes(const QString& text, int from, QChar one, QChar other)
{
    QChar quote;
    for (int i = from; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (!quote.isNull()) {
            quote = character == quote ? QChar() : quote;
        } else if (character == one || character == other) {
            return i;
        } else if (character == QLatin1Char('"') || character == QLatin1Char('\'')) {
            quote = character;
        }
    }
    return endOfText;
}

// The place behind what stands at `open`, where a markup without elements begins: comment, CDATA,
// processing instruction or declaration. endOfText if it does not end.
int skipMarkup(const QString& text, int open)
{
    const QStringRef rest = text.midRef(open);
    if (rest.startsWith(QLatin1String("<!--"))) {
        return behind(text, QLatin1String("-->"), open + 4);
    }
    if (rest.startsWith(QLatin1String("<![CDATA["))) {
        return behind(text, QLatin1String("]]>"), open);
    }
    if (rest.startsWith(QLatin1String("<?"))) {
        return behind(text, QLatin1String("?>"), open);
    }
    return behind(text, QLatin1String(">"), open);
}

// The reason why the document must not be built, or an empty string. Well-formedness is not
// looked at: what comes behind an error in the text is never built.
QString refusal(const QString& text)
{
    const QChar less = QLatin1Char('<');
    int depth = 0;
    for (int i = text.indexOf(less); i != endOfText; i = text.indexOf(less, i)) {
        const QChar next = i + 1 < text.size() ? text.at(i + 1) : QChar();
        if (text.midRef(i).startsWith(QLatin1String("<!DOCTYPE"))) {
            i = findOutsideQuotes(text, i, QLatin1Char('['), QLatin1Char('>'));
            if (i != endOfText && text.at(i) == QLatin1Char('[')) {
                return QStringLiteral("it declares entities of its own");
            }
        } else if (next == QLatin1Char('!') || next == QLatin1Char('?')) {
            i = skipMarkup(text, i);
        } else {
            const bool isEndTag = next == QLatin1Char('/');
            i = findOutsideQuotes(text, i, QLatin1Char('>'), QLatin1Char('>'));
            const bool isEmpty = i != endOfText && text.at(i - 1) == QLatin1Char('/');
            depth += isEndTag ? -1 : (isEmpty ? 0 : 1);
        }
        if (depth > maxXmlDepth) {
            return QStringLiteral("nested deeper than %1 elements").arg(maxXmlDepth);
        }
        if (i == endOfText) {
            break;
        }
    }
    return {};
}

// The text by its byte order mark or the encoding it declares. QDomDocument does the same with
// bytes; here it must not come to another text than the one that was looked at.
QString decoded(const QByteArray& bytes)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // there is no other way to this decoder
        QXmlInputSource source;
    QT_WARNING_POP
    source.setData(bytes);
    return source.data();
}

// The files that could not be read, by their canonical paths.
std::set<QString>& brokenFiles()
{
    static auto* files = new std::set<QString>;
    return *files;
}

// The path itself where there is no such file yet.
QString canonicalPath(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? path : canonical;
}

bool keepAside(const QString& path)
{
    const QString aside = path + QStringLiteral(".bak");
    const QString newest = aside + QStringLiteral(".new");
    QFile::remove(newest);
    // The older copy goes only when the newer one is safe.
    if (!QFile::rename(path, newest)) {
        return false;
    }
    QFile::remove(aside);
    QFile::rename(newest, aside);
    return true;
}

} // namespace

XmlLoad loadXmlFile(const QString& path, QDomDocument& document, QString* reason)
{
    document = QDomDocument();
    const auto broken = [reason, &path](const QString& text) {
        rememberBroken(path);
        if (reason != nullptr) {
            *reason = text;
        }
        return XmlLoad::Broken;
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QFileInfo(path).isFile() ? broken(file.errorString()) : XmlLoad::Absent;
    }
    // One byte more than allowed tells a file that is too large, also where size() knows nothing.
    const QByteArray bytes = file.read(maxXmlBytes + 1);
    if (bytes.size() > maxXmlBytes) {
        return broken(QStringLiteral("larger than %1 bytes").arg(maxXmlBytes));
    }
    const QString text = decoded(bytes);
    const QString refused = refusal(text);
    if (!refused.isEmpty()) {
        return broken(refused);
    }
    QString error;
    if (!document.setContent(text, &error)) {
        document = QDomDocument();
        return broken(error);
    }
    brokenFiles().erase(canonicalPath(path));
    return XmlLoad::Loaded;
}

void rememberBroken(const QString& path)
{
    brokenFiles().insert(canonicalPath(path));
}

bool saveXmlFile(const QDomDocument& document, const QString& path)
{
    // Where a link leads to, so that the link stays one.
    const QString target = canonicalPath(path);
    if (brokenFiles().erase(target) != 0 && !keepAside(target)) {
        rememberBroken(target);
        return false;
    }
    QSaveFile file(target);
    file.setDirectWriteFallback(true);
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

} // namespace zul
