#include "comm/CanRead.h"

#include "comm/DeviceLink.h"

#include <utility>

namespace comm {

CanRead::CanRead(std::shared_ptr<DeviceLink> link) : m_link(std::move(link)) {}

void CanRead::startReading()
{
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
        m_link->drain();
        msleep(periodMs);
    } while (!m_stop);
}

} // namespace comm
