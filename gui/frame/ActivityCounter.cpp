#include "gui/frame/ActivityCounter.h"

namespace gui {

bool ActivityCounter::setCount(std::uint32_t count, double now)
{
    const bool wasLit = m_lit;
    if (count != m_count) {
        m_count = count;
        m_changeTime = now;
        m_lit = true;
    }
    if (m_lit && now - m_changeTime > litSeconds) {
        m_lit = false;
    }
    return m_lit != wasLit;
}

QString ActivityCounter::text() const
{
    constexpr std::uint32_t modulus = 10000;
    return QString::asprintf("%04d", static_cast<int>(m_count % modulus));
}

} // namespace gui
