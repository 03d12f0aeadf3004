#pragma once

#include "comm/CanRead.h"
#include "comm/LoadEstimator.h"
#include "message/Device.h"
#include "message/MessageContainer.h"
#include "project/InterfaceObject.h"
#include "project/ObjectTypeInfo.h"

#include <QMutex>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace comm {

/// One CAN connection: it owns a device, reads it on a thread of its own while connected, delivers
/// what was received to the windows on the main thread, and takes what windows send.
///
/// Everything but `drainDevice` runs on the main thread.
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
    Device* device() const { return m_device; }
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
    bool isConnected() const { return m_connected; }

    /// Moves what the device has received onto the list of `poll`; on the reader thread.
    void drainDevice();

    static constexpr int defaultExtent = 400; ///< window size, both ways, in pixels

private:
    void drainLocked();
    void takeReceived(MessageContainer& batch);
    void readElement(const QDomElement& element);
    void readProperty(const QDomElement& element);

    LoadEstimator m_estimator;
    std::atomic<bool> m_connected{false};
    bool m_statusDriven = false;
    Device* m_device = nullptr;       // guarded by m_mutex against the reader while it is exchanged
    std::vector<Message*> m_received; // owned; guarded by m_mutex
    // Lists of the poll before, empty: allocating large ones anew at each poll would make the
    // allocator put all its small free blocks together, and slow down the next frames.
    std::vector<Message*> m_taken;
    MessageContainer m_batchStorage;
    QMutex m_mutex;
    CanRead m_reader;
};

} // namespace comm
