#pragma once

#include "message/MessageContainer.h"
#include "project/InterfaceObject.h"
#include "project/ObjectWindow.h"
#include "project/WindowObject.h"

#include <string>
#include <vector>

namespace zul::test {

/// A window that notes what it is told.
class ProbeWindow : public ObjectWindow
{
public:
    void setObject(Object* object) override { objects.push_back(object); }
    void receive(MessageContainer& batch) override
    {
        sources.push_back(batch.srcDest());
        sizes.push_back(batch.size());
    }
    void updateDialog() override { ++updates; }

    std::vector<Object*> objects;
    std::vector<std::string> sources;
    std::vector<std::uint32_t> sizes;
    int updates = 0;
};

/// An interface without a device: it notes polls and what it is to send.
class ProbeInterface : public InterfaceObject
{
public:
    ObjectWindow* createDialog(QWidget*) override { return nullptr; }
    void writeXml(QDomDocument& document, QDomElement& parent) override
    {
        QDomElement element = addElement(document, parent, QStringLiteral("ObjectCanInterface"));
        writeWindow(document, element);
    }
    void readXml(const QDomNode& node) override
    {
        readWindow(node.firstChildElement(QStringLiteral("Window")));
    }
    void receive(MessageContainer& batch) override { sent.push_back(batch.srcDest()); }
    bool poll() override
    {
        ++polls;
        if (pollLog != nullptr) {
            pollLog->push_back(id());
        }
        return true;
    }
    DeviceStatus status() override { return state; }
    bool disconnect() override
    {
        ++disconnects;
        state = DeviceStatus::Closed;
        return true;
    }

    DeviceStatus state = DeviceStatus::Closed;
    int polls = 0;
    int disconnects = 0;
    std::vector<std::string> sent;
    std::vector<int>* pollLog = nullptr;
};

} // namespace zul::test
