#pragma once

#include "project/Object.h"
#include "project/ObjectTypeInfo.h"

/// The record of a status window: its geometry alone. Not registered with projects, since status
/// windows belong to their interfaces.
class ObjectStatus : public Object
{
public:
    ObjectStatus();
    ~ObjectStatus() override;

    static std::unique_ptr<Object> create();
    static ObjectTypeInfo typeInfo();

    ObjectWindow* createDialog(QWidget* parent) override;
    void writeXml(QDomDocument& document, QDomElement& parent) override;
    void readXml(const QDomNode& node) override;
    /// Always 1; the program calls it nowhere.
    virtual int recordVersion() const;
};
