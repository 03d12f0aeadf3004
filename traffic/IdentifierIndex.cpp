#include "traffic/IdentifierIndex.h"

#include <utility>

namespace {

constexpr unsigned hashBits = 32;

} // namespace

int IdentifierIndex::findOrAdd(std::uint32_t identifier, int newRow)
{
    if (2 * m_used >= m_slots.size()) {
        grow();
    }
    Slot& slot = m_slots[slotOf(identifier)];
    if (slot.row == none) {
        slot = {identifier, newRow};
        ++m_used;
    }
    return slot.row;
}

void IdentifierIndex::clear()
{
    m_slots.clear();
    m_used = 0;
}

std::size_t IdentifierIndex::slotOf(std::uint32_t identifier) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t place = firstPlace(identifier);
    while (m_slots[place].row != none && m_slots[place].identifier != identifier) {
        place = (place + 1) & mask;
    }
    return place;
}

void IdentifierIndex::grow()
{
    const std::vector<Slot> before = std::move(m_slots);
    m_shift = before.empty() ? hashBits - leastBits : m_shift - 1;
    m_slots.assign(std::size_t{1} << (hashBits - m_shift), Slot{0, none});
    for (const Slot& slot : before) {
        if (slot.row != none) {
            m_slots[slotOf(slot.identifier)] = slot;
        }
    }
}
