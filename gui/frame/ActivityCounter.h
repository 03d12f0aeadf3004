#pragma once

#include <QString>

#include <cstdint>

namespace gui {

/// A frame counter with a lamp that is lit while the count changes.
class ActivityCounter
{
public:
    /// The lamp goes out at the first `setCount` that comes later than this after the last change,
    /// in seconds.
    static constexpr double litSeconds = 0.5;

    /// Stores the count and sets the lamp; `now` is the application clock in seconds. True if the
    /// lamp changed.
    bool setCount(std::uint32_t count, double now);
    /// Stores the count alone.
    void setCountQuietly(std::uint32_t count) { m_count = count; }

    bool isLit() const { return m_lit; }
    std::uint32_t count() const { return m_count; }
    /// The last four digits, with leading zeros.
    QString text() const;

private:
    std::uint32_t m_count = 0;
    double m_changeTime = 0.0;
    bool m_lit = false;
};

} // namespace gui
