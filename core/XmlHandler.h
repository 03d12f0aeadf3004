#pragma once

#include <QDomDocument>
#include <QString>

#include <string>

namespace zul {

/// Helpers for reading and writing the XML of the project file. It holds nothing.
///
/// Every reader takes the attributes of a node, a name, and the default for an absent attribute.
class XmlHandler
{
public:
    /// True if the text is exactly "true" or "1"; any other present text is false.
    static bool readBool(const QDomNamedNodeMap& attributes, const QString& name, bool def);
    /// Decimal; text that is no number gives 0, not the default.
    static int readInt(const QDomNamedNodeMap& attributes, const QString& name, int def);
    /// Text that is no number, or no finite one, gives 0, not the default.
    static double readDouble(const QDomNamedNodeMap& attributes, const QString& name, double def);
    static QString readString(const QDomNamedNodeMap& attributes, const QString& name,
                              const QString& def);
    /// The text as Latin-1.
    static std::string readStdString(const QDomNamedNodeMap& attributes, const QString& name,
                                     const std::string& def);

    /// Characters that XML cannot hold are dropped: a file with them could not be read again.
    static void writeString(QDomDocument& document, QDomElement& element, const QString& name,
                            const QString& value);
    /// \overload Latin-1 text
    static void writeString(QDomDocument& document, QDomElement& element, const QString& name,
                            const std::string& value);
    static void writeInt(QDomDocument& document, QDomElement& element, const QString& name,
                         int value);
    /// Twelve places after a decimal point, whatever the locale.
    static void writeDouble(QDomDocument& document, QDomElement& element, const QString& name,
                            double value);

    /// Makes an element as the last child of `parent`.
    static QDomElement addElement(QDomDocument& document, QDomNode& parent, const QString& name);

    /// False if the file cannot be opened or is not well-formed; `document` is then empty.
    static bool loadDocument(const QString& path, QDomDocument& document);
    /// False if the file cannot be written; the old file then stays.
    static bool saveDocument(const QDomDocument& document, const QString& path);
};

} // namespace zul
