#pragma once

#include <QThread>

#include <atomic>

namespace comm {

class CanInterface;

/// The reader thread of one interface: it drains the device and sleeps, nothing else.
class CanRead : public QThread
{
public:
    explicit CanRead(CanInterface& interface);

    /// Starts the thread at high priority. A run that was told to stop and has not ended yet is
    /// waited for, which takes no longer than its sleep.
    void startReading();
    /// Tells the thread to end; does not wait for it.
    void stopReading();

    /// Sleep between two rounds, in milliseconds.
    static constexpr unsigned long periodMs = 10;

protected:
    void run() override;

private:
    CanInterface& m_interface;
    std::atomic<bool> m_stop{false};
};

} // namespace comm
