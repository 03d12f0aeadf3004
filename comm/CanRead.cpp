#include "comm/CanRead.h"

#include "comm/CanInterface.h"

namespace comm {

CanRead::CanRead(CanInterface& interface) : m_interface(interface) {}

void CanRead::startReading()
{
    if (m_stop) {
        wait();
    }
    // Cleared here and not by the thread itself, which might overwrite a stop that came in between.
    m_stop = false;
    start(QThread::HighPriority);
}

void CanRead::stopReading()
{
    m_stop = true;
}

void CanRead::run()
{
    do {
        m_interface.drainDevice();
        msleep(periodMs);
    } while (!m_stop);
}

} // namespace comm
