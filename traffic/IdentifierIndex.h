#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// A map from identifier to row number that only grows: one flat table with open addressing, at
/// most half full, so that a look-up costs one cache line as a rule and no walk along nodes.
class IdentifierIndex
{
public:
    /// The row of `identifier`; that is `newRow`, which is not negative, if it had none.
    int findOrAdd(std::uint32_t identifier, int newRow);
    /// Starts to bring what `findOrAdd` will look at from memory.
    void prefetch(std::uint32_t identifier) const
    {
        if (!m_slots.empty()) {
            __builtin_prefetch(&m_slots[firstPlace(identifier)]);
        }
    }
    void clear();

private:
    struct Slot
    {
        std::uint32_t identifier;
        int row;
    };

    static constexpr int none = -1;
    static constexpr unsigned leastBits = 6;

    std::size_t firstPlace(std::uint32_t identifier) const
    {
        // Multiplying by 2^32 over the golden ratio spreads neighbours over the whole table.
        constexpr std::uint32_t multiplier = 0x9E3779B1U;
        return identifier * multiplier >> m_shift;
    }
    std::size_t slotOf(std::uint32_t identifier) const;
    void grow();

    std::vector<Slot> m_slots; // their number is a power of two, or 0
    std::size_t m_used = 0;
    unsigned m_shift = 0; // leaves as many bits of a hash as number the slots
};
