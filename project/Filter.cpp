#include "project/Filter.h"

#include <algorithm>
#include <utility>

bool Filter::matches(std::uint32_t id) const
{
    if (!m_on) {
        return true;
    }
    if (m_type != static_cast<std::int32_t>(Type::Limit)) {
        return std::binary_search(m_ids.begin(), m_ids.end(), id);
    }
    const auto value = static_cast<std::int32_t>(id);
    return value >= m_minId && value <= m_maxId;
}

void Filter::setMin(std::int32_t value)
{
    m_minId = std::clamp(value, 0, maxIdentifier);
    orderBounds();
}

void Filter::setMax(std::int32_t value)
{
    m_maxId = std::clamp(value, 0, maxIdentifier);
    orderBounds();
}

void Filter::addId(std::uint32_t id)
{
    const auto place = std::lower_bound(m_ids.begin(), m_ids.end(), id);
    if (place == m_ids.end() || *place != id) {
        m_ids.insert(place, id);
    }
}

void Filter::setIds(std::vector<std::uint32_t> ids)
{
    m_ids = std::move(ids);
    std::sort(m_ids.begin(), m_ids.end());
    m_ids.erase(std::unique(m_ids.begin(), m_ids.end()), m_ids.end());
}

void Filter::removeId(std::uint32_t id)
{
    const auto place = std::lower_bound(m_ids.begin(), m_ids.end(), id);
    if (place != m_ids.end() && *place == id) {
        m_ids.erase(place);
    }
}

void Filter::clearIds()
{
    m_ids.clear();
}

void Filter::orderBounds()
{
    if (m_minId > m_maxId) {
        std::swap(m_minId, m_maxId);
    }
}
