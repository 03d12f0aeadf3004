#pragma once

#include <QThread>

#include <atomic>
#include <memory>

namespace comm {

class DeviceLink;

/// The reader thread of one interface: it drains the device and sleeps, nothing else.
class CanRead : public QThread
{
public:
    /// Sleep between two rounds, in milliseconds.
    static constexpr unsigned long periodMs = 10;

    explicit CanRead(std::shared_ptr<DeviceLink> link);

    /// Starts the thread at high priority.
    void startReading();
    /// Tells the thread to end; does not wait for it.
    void stopReading();

protected:
    void run() override;

private:
    std::shared_ptr<DeviceLink> m_link;
    std::atomic<bool> m_stop{false};
};

} // namespace comm
