#include "traffic/ReceiveTable.h"

#include "project/Filter.h"

#include <algorithm>

using zul::MessageCan;

void ReceiveTable::update(const MessageContainer& batch, bool inputOn, const Filter& filter,
                          double now)
{
    if (now < m_latest) {
        // The wall clock was set back: frames that come now are older than those of before.
        m_orderedFrom = m_latest + silentAfter;
    }
    m_latest = std::max(m_latest, now);
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
    m_oldest = none;
    m_newest = none;
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
    ReceiveRow& row = entry(index).row;
    row.msg = frame;
    row.active = true;
    row.lastTime = now;
    ++row.count;
    markDirty(index);
    if (index != m_newest) {
        unlink(index);
        linkAtEnd(index);
    }
}

void ReceiveTable::markDirty(int index)
{
    ReceiveRow& row = entry(index).row;
    if (!row.dirty) {
        row.dirty = true;
        m_dirty.push_back(index);
    }
}

void ReceiveTable::linkAtEnd(int index)
{
    Entry& linked = entry(index);
    linked.previous = m_newest;
    linked.next = none;
    linked.isLinked = true;
    if (m_newest != none) {
        entry(m_newest).next = index;
    } else {
        m_oldest = index;
    }
    m_newest = index;
}

void ReceiveTable::unlink(int index)
{
    Entry& linked = entry(index);
    if (!linked.isLinked) {
        return;
    }
    if (linked.previous != none) {
        entry(linked.previous).next = linked.next;
    } else {
        m_oldest = linked.next;
    }
    if (linked.next != none) {
        entry(linked.next).previous = linked.previous;
    } else {
        m_newest = linked.previous;
    }
    linked.isLinked = false;
}

void ReceiveTable::age(double now)
{
    const bool inOrder = now > m_orderedFrom;
    for (int index = m_oldest; index != none;) {
        Entry& candidate = entry(index);
        const int next = candidate.next;
        if (now - candidate.row.lastTime > silentAfter) {
            candidate.row.active = false;
            unlink(index);
            markDirty(index);
        } else if (inOrder) {
            return;
        }
        index = next;
    }
}
