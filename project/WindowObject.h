#pragma once

#include "project/Filter.h"
#include "project/Object.h"
#include "project/RecordReader.h"
#include "project/RecordWriter.h"

/// Base of the objects that hold the settings of a tool window: element, `Window`, `Mode`, further
/// children and `Filter` in the project file.
///
/// Values are taken from the file as they stand; windows clamp what they show.
class WindowObject : public Object
{
public:
    explicit WindowObject(ObjectType type);
    ~WindowObject() override;

    ObjectWindow* createDialog(QWidget* parent) override;
    void writeXml(QDomDocument& document, QDomElement& parent) override;
    void readXml(const QDomNode& node) override;
    /// Always 1; the program calls it nowhere.
    virtual int recordVersion() const;

    /// The identifier filter; of no use in classes whose record has none.
    Filter& filter() { return m_filter; }
    const Filter& filter() const { return m_filter; }

protected:
    /// Whether the record has a `Filter`.
    virtual bool hasFilter() const;
    /// Writes the attributes of `Mode`.
    virtual void writeMode(RecordWriter& writer) const = 0;
    virtual void readMode(RecordReader& reader) = 0;
    /// Appends what stands between `Mode` and `Filter`. Nothing here.
    virtual void writeChildren(QDomDocument& document, QDomElement& element) const;
    /// Appends what stands behind `Filter`. Nothing here.
    virtual void writeChildrenAfterFilter(QDomDocument& document, QDomElement& element) const;
    /// Reads a child that is none of `Window`, `Mode` and `Filter`. Nothing here.
    virtual void readChild(const QDomElement& element);

private:
    void writeFilter(QDomDocument& document, QDomElement& element) const;
    void readFilter(const QDomElement& element);

    Filter m_filter;
};
