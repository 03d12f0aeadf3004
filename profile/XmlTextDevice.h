#pragma once

#include "profile/XmlGuard.h"

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QTextDecoder>

#include <memory>

namespace zul {

/// The text of an XML file in UTF-8, whatever the file's own encoding is: that of its byte order
/// mark, else the one that it declares, else UTF-8.
///
/// A letter that is wrongly encoded, as in a file from an editor that knows nothing of XML, costs
/// that letter alone; `QXmlStreamReader` by itself refuses the whole file. The text ends early
/// where `XmlGuard` refuses it, so that the reader finds it incomplete.
class XmlTextDevice : public QIODevice
{
public:
    /// `bytes` belongs to the caller and outlives the object.
    explicit XmlTextDevice(QIODevice& bytes) : m_bytes(bytes) {}

    /// Opens the device at the begin of the bytes, which must be open; also once more.
    void start();

    /// From now on the device gives that many bytes and then ends as if the file did. Without a
    /// limit after `start`.
    void allow(qint64 bytes) { m_left = bytes; }
    /// Whether the device has ended by its limit.
    bool isExhausted() const { return m_left == 0; }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    void fill();

    QIODevice& m_bytes;
    std::unique_ptr<QTextDecoder> m_decoder;
    qint64 m_left = 0;
    QByteArray m_text; ///< decoded, not taken yet from `m_position` on
    int m_position = 0;
    QString m_held; ///< first half of a letter, decoded
    XmlGuard m_guard;
    bool m_isRefused = false;
    bool m_isFirst = true; ///< the declaration is still to come
};

} // namespace zul
