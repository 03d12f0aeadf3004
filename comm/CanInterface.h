#pragma once

#include "comm/CanRead.h"
#include "comm/DeviceLink.h"
#include "comm/LoadEstimator.h"
#include "message/Device.h"
#include "message/MessageContainer.h"
#include "project/InterfaceObject.h"
#include "project/ObjectTypeInfo.h"

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace comm {

/// One CAN connection: it owns a device, reads it on a thread of its own while connected, delivers
/// what was received to the windows on the main thread, and takes what windows send.
///
/// All of it runs on the main thread; the reader thread only sees the `DeviceLink`.
class CanInterface : public InterfaceObject
{
public:
    CanInterface();
    /// Stops the reader. The device is not closed and not destroyed: `Project::clear` disconnects
    /// before it deletes, and a device that is still open goes on until process exit.
    ~CanInterface() override;

    static std::unique_ptr<Object> create();
    static ObjectTypeInfo typeInfo();

    ObjectWindow* createDialog(QWidget* parent) override;
    void writeXml(QDomDocument& document, QDomElement& parent) override;
    void readXml(const QDomNode& node) override;
    /// Sends the batch through the device if it is addressed to this interface or to all. Nothing
    /// happens while not connected.
    void receive(MessageContainer& batch) override;

    /// The device, or null.
    Device* device() const { return m_link->device(); }
    /// Closes and destroys the device there is, and makes one of that module. True if a device now
    /// exists; an empty name only removes.
    bool selectDevice(const std::string& moduleName);
    /// Opens the device and starts reading; false, with `errorMessage()`, if that fails.
    bool connect();
    bool disconnect() override;
    DeviceStatus status() override;
    /// The device's last error text; empty without a device.
    QString errorMessage() const;
    /// Percent of the configured bit rate; can exceed 100.
    double busLoad() const;
    /// Frames per second.
    int frameRate() const;
    bool poll() override;
    bool isConnected() const { return m_link->isConnected(); }

    /// What the reader thread sees of the interface.
    DeviceLink& link() { return *m_link; }

    static constexpr int defaultExtent = 400; ///< window size, both ways, in pixels

private:
    void takeReceived(MessageContainer& batch);
    const std::string& sourceName();
    void retireReader();
    void readElement(const QDomElement& element);
    void readProperty(const QDomElement& element);

    LoadEstimator m_estimator;
    bool m_statusDriven = false;
    std::string m_moduleName; // as it was selected, for a device that fails to tell
    std::shared_ptr<DeviceLink> m_link = std::make_shared<DeviceLink>();
    std::unique_ptr<CanRead> m_reader; // null until the first connection
    // Lists of the poll before, empty: allocating large ones anew at each poll would make the
    // allocator put all its small free blocks together, and slow down the next frames.
    std::vector<Message*> m_taken;
    std::unique_ptr<MessageContainer> m_batch; // null while a poll is at work with it
    // The name and its Latin-1, which goes with each batch.
    QString m_convertedName;
    std::string m_sourceName;
};

} // namespace comm
