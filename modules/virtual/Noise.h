#pragma once

#include <cstdint>

namespace canvirtual {

/// Pseudo-random numbers that are the same in every run and with every compiler (xorshift).
class Noise
{
public:
    /// `seed` is not 0.
    explicit Noise(std::uint32_t seed) : m_state(seed) {}

    std::uint32_t next()
    {
        m_state ^= m_state << 13U;
        m_state ^= m_state >> 17U;
        m_state ^= m_state << 5U;
        return m_state;
    }

    /// From 0 (inclusive) to 1 (exclusive).
    double fraction() { return next() / 4294967296.0; }

private:
    std::uint32_t m_state;
};

} // namespace canvirtual
