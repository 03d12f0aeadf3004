#include "traffic/ReceiveTable.h"

#include "project/Filter.h"

#include <algorithm>

using zul::MessageCan;

void ReceiveTable::update(const MessageContainer& batch, bool inputOn, const Filter& filter,
                          double now)
{
    if (now < m_latest) {
        setBack(now);
    }
    m_latest = now;
    for (const auto& message : batch.messages()) {
        const auto* frame = message_cast<MessageCan>(message.get());
        if (frame == nullptr) {
            continue;
        }
        ++m_receivedTotal;
        if (inputOn && filter.matches(frame->id())) {
            takeFrame(findOrAddRow(frame->id()), *frame, now);
        }
    }
    age(now);
}

void ReceiveTable::clear()
{
    m_rows.clear();
    m_index.clear();
    m_dirty.clear();
    m_sightings.clear();
    m_ahead.clear();
}

void ReceiveTable::clearDirty()
{
    for (const int index : m_dirty) {
        row(index).dirty = false;
    }
    m_dirty.clear();
}

void ReceiveTable::markAllDirty()
{
    for (int i = 0; i < rowCount(); ++i) {
        markDirty(i);
    }
}

int ReceiveTable::findOrAddRow(std::uint32_t key)
{
    const auto [place, isNew] = m_index.try_emplace(key, rowCount());
    if (isNew) {
        m_rows.emplace_back();
    }
    return place->second;
}

void ReceiveTable::takeFrame(int index, const MessageCan& frame, double now)
{
    ReceiveRow& taken = row(index);
    if (!taken.active || taken.count == 0 || taken.lastTime != now) {
        m_sightings.push_back({now, index});
    }
    taken.msg = frame;
    taken.active = true;
    taken.lastTime = now;
    ++taken.count;
    markDirty(index);
}

void ReceiveTable::markDirty(int index)
{
    ReceiveRow& marked = row(index);
    if (!marked.dirty) {
        marked.dirty = true;
        m_dirty.push_back(index);
    }
}

void ReceiveTable::setBack(double now)
{
    while (!m_sightings.empty() && m_sightings.back().time > now) {
        m_ahead.push_back(m_sightings.back());
        m_sightings.pop_back();
    }
}

void ReceiveTable::age(double now)
{
    const auto isSilent = [this, now](const Sighting& sighting) {
        const ReceiveRow& seen = row(sighting.row);
        return seen.active && now - seen.lastTime > silentAfter;
    };
    while (!m_sightings.empty() && now - m_sightings.front().time > silentAfter) {
        if (isSilent(m_sightings.front())) {
            silence(m_sightings.front().row);
        }
        m_sightings.pop_front();
    }
    // Kept until the clock has come that far again, or a later frame stands for the row.
    const auto isDone = [&](const Sighting& sighting) {
        if (isSilent(sighting)) {
            silence(sighting.row);
        }
        const ReceiveRow& seen = row(sighting.row);
        return !seen.active || seen.lastTime != sighting.time;
    };
    m_ahead.erase(std::remove_if(m_ahead.begin(), m_ahead.end(), isDone), m_ahead.end());
}

void ReceiveTable::silence(int index)
{
    row(index).active = false;
    markDirty(index);
}
