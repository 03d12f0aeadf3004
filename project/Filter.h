#pragma once

#include <cstdint>
#include <vector>

/// Which identifiers a window takes.
class Filter
{
public:
    enum class Type : std::int32_t {
        Limit = 0, ///< identifiers between two bounds
        Single = 1 ///< a list of single identifiers
    };

    /// The largest 29-bit identifier.
    static constexpr std::int32_t maxIdentifier = 0x1FFFFFFF;

    /// The decision of all windows, on the identifier with all its bits. True while the filter is
    /// off. The limits are compared as signed numbers, so an identifier with bit 31 set fails them.
    /// A type that is neither of the two counts as `Single`.
    bool matches(std::uint32_t id) const;

    std::int32_t type() const { return m_type; }
    void setType(std::int32_t type) { m_type = type; }
    /// Lower bound, inclusive.
    std::int32_t minId() const { return m_minId; }
    /// Clamped into 0 to `maxIdentifier`. If the bounds cross, they are swapped.
    void setMin(std::int32_t value);
    /// Upper bound, inclusive.
    std::int32_t maxId() const { return m_maxId; }
    /// Clamped into 0 to `maxIdentifier`. If the bounds cross, they are swapped.
    void setMax(std::int32_t value);
    bool isOn() const { return m_on; }
    void setOn(bool on) { m_on = on; }

    /// The single identifiers, each once, in ascending order.
    const std::vector<std::uint32_t>& ids() const { return m_ids; }
    void addId(std::uint32_t id);
    /// Replaces the list; the order does not matter, nor do duplicates.
    void setIds(std::vector<std::uint32_t> ids);
    void removeId(std::uint32_t id);
    void clearIds();

private:
    void orderBounds();

    std::int32_t m_type = 0;
    std::int32_t m_minId = 0;
    std::int32_t m_maxId = maxIdentifier;
    bool m_on = false;
    std::vector<std::uint32_t> m_ids;
};
