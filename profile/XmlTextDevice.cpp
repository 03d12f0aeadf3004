#include "profile/XmlTextDevice.h"

#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>
#include <cstring>
#include <limits>

namespace zul {

namespace {

// Longest declaration that is looked at.
constexpr int headLength = 1024;

// The place of the encoding's name in an XML declaration at the begin of the text.
QRegularExpressionMatch declaredEncoding(const QString& text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^<\\?xml\\s[^>]*?\\bencoding\\s*=\\s*[\"']([^\"'>]*)[\"']"));
    return pattern.match(text.left(headLength));
}

QTextCodec* codecOf(const QByteArray& head)
{
    if (QTextCodec* marked = QTextCodec::codecForUtfText(head, nullptr)) {
        return marked;
    }
    const QString name = declaredEncoding(QString::fromLatin1(head)).captured(1);
    QTextCodec* declared = QTextCodec::codecForName(name.toLatin1());
    return declared != nullptr ? declared : QTextCodec::codecForName("UTF-8");
}

} // namespace

void XmlTextDevice::start()
{
    close();
    m_bytes.seek(0);
    m_decoder.reset(codecOf(m_bytes.peek(headLength))->makeDecoder());
    m_text.clear();
    m_position = 0;
    m_isFirst = true;
    m_held.clear();
    m_guard = XmlGuard();
    m_isRefused = false;
    m_left = std::numeric_limits<qint64>::max();
    open(QIODevice::ReadOnly);
}

void XmlTextDevice::fill()
{
    constexpr qint64 blockSize = qint64{64} * 1024;
    m_position = 0;
    m_text.clear();
    // A block may end within its first letter.
    while (m_text.isEmpty() && !m_isRefused && !m_bytes.atEnd()) {
        const QByteArray block = m_bytes.read(blockSize);
        if (block.isEmpty()) {
            return; // reading failed
        }
        QString text = m_held + m_decoder->toUnicode(block);
        m_held.clear();
        // The other half of a letter is in the next block.
        if (!text.isEmpty() && text.at(text.size() - 1).isHighSurrogate() && !m_bytes.atEnd()) {
            m_held = text.right(1);
            text.chop(1);
        }
        if (m_isFirst) {
            const QRegularExpressionMatch declared = declaredEncoding(text);
            if (declared.hasMatch()) {
                text.replace(declared.capturedStart(1), declared.capturedLength(1),
                             QStringLiteral("UTF-8"));
            }
            m_isFirst = false;
        }
        m_text = text.toUtf8();
        m_isRefused =
            !m_guard.accept({m_text.constData(), static_cast<std::size_t>(m_text.size())});
        if (m_isRefused) {
            m_text.clear();
        }
    }
}

qint64 XmlTextDevice::readData(char* data, qint64 maxSize)
{
    if (m_position == m_text.size()) {
        fill();
    }
    const qint64 size = std::min({maxSize, m_left, qint64{m_text.size()} - m_position});
    std::memcpy(data, m_text.constData() + m_position, static_cast<std::size_t>(size));
    m_position += static_cast<int>(size);
    m_left -= size;
    return size;
}

} // namespace zul
