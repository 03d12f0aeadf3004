#include "traffic/ReceiveTable.h"

#include "profile/Arinc825Id.h"
#include "project/Filter.h"

#include <algorithm>
#include <utility>

using zul::MessageCan;

namespace {

void prefetch(const ReceiveRow& row)
{
    constexpr std::size_t cacheLine = 64;
    const auto* begin = reinterpret_cast<const char*>(&row);
    for (std::size_t offset = 0; offset < sizeof(ReceiveRow); offset += cacheLine) {
        __builtin_prefetch(begin + offset, 1);
    }
}

} // namespace

void ReceiveTable::showIdentifiers()
{
    if (m_parameterIndex != nullptr) {
        clear();
    }
    m_parameterIndex = nullptr;
    m_ignoredBits = 0;
}

void ReceiveTable::showParameters(const ProfileStore::ParameterIndex& index)
{
    if (m_parameterIndex != &index) {
        clear();
    }
    m_parameterIndex = &index;
    m_ignoredBits = zul::arinc825::data::fsb.mask();
}

void ReceiveTable::update(const MessageContainer& batch, bool inputOn, const Filter& filter,
                          double now)
{
    if (now < m_latest) {
        setBack(now);
    }
    m_latest = now;
    Frames frames{};
    std::size_t count = 0;
    for (const auto& message : batch.messages()) {
        const auto* frame = message_cast<MessageCan>(message.get());
        if (frame == nullptr) {
            continue;
        }
        ++m_receivedTotal;
        if (!inputOn || !filter.matches(frame->id())) {
            continue;
        }
        m_index.prefetch(keyOf(frame->id()));
        frames[count++] = frame;
        if (count == frames.size()) {
            takeFrames(frames, count, now);
            count = 0;
        }
    }
    takeFrames(frames, count, now);
    age(now);
}

void ReceiveTable::takeFrames(const Frames& frames, std::size_t count, double now)
{
    std::array<int, framesAtOnce> rows{};
    for (std::size_t i = 0; i < count; ++i) {
        rows[i] = findOrAddRows(keyOf(frames[i]->id()));
        prefetch(row(rows[i]));
    }
    for (std::size_t i = 0; i < count; ++i) {
        const int last = rows[i] + static_cast<int>(row(rows[i]).followers);
        for (int index = rows[i]; index <= last; ++index) {
            takeFrame(index, *frames[i], now);
        }
    }
}

void ReceiveTable::clear()
{
    m_rows.clear();
    m_parameters.clear();
    m_index.clear();
    m_paintedFrames.clear();
    m_dirty.clear();
    m_lastTimes.clear();
    m_instants.clear();
    m_ahead.clear();
}

void ReceiveTable::clearDirty()
{
    for (const int index : m_dirty) {
        row(index).dirty = false;
    }
    m_dirty.clear();
}

void ReceiveTable::notePainted(int index)
{
    ReceiveRow& painted = row(index);
    if (painted.msg.frameType() == MessageCan::EFrameType::Error) {
        painted.namesLost = true;
    } else if (m_parameterIndex == nullptr) {
        m_paintedFrames.resize(m_rows.size());
        m_paintedFrames[static_cast<std::size_t>(index)] = painted.msg;
    }
}

const MessageCan* ReceiveTable::paintedFrame(int index) const
{
    const auto place = static_cast<std::size_t>(index);
    const bool isPainted = place < m_paintedFrames.size() && m_paintedFrames[place].has_value();
    return isPainted ? &*m_paintedFrames[place] : nullptr;
}

void ReceiveTable::markAllDirty()
{
    for (int i = 0; i < rowCount(); ++i) {
        markDirty(i);
    }
}

int ReceiveTable::findOrAddRows(std::uint32_t key)
{
    const int newRow = rowCount();
    const int index = m_index.findOrAdd(key, newRow);
    if (index == newRow) {
        if (m_parameterIndex != nullptr) {
            addParameterRows(key);
        } else {
            addRow();
        }
    }
    return index;
}

void ReceiveTable::addRow()
{
    m_rows.emplace_back();
    m_lastTimes.push_back(0.0);
}

void ReceiveTable::addParameterRows(std::uint32_t key)
{
    const int first = rowCount();
    const auto found = m_parameterIndex->equal_range(zul::arinc825::parameterKey(key));
    for (auto entry = found.first; entry != found.second; ++entry) {
        m_parameters.push_back({entry->second, true});
        addRow();
    }
    if (found.first == found.second) {
        m_parameters.emplace_back();
        addRow();
    }
    row(first).followers = static_cast<std::uint32_t>(rowCount() - first - 1);
}

void ReceiveTable::takeFrame(int index, const MessageCan& frame, double now)
{
    ReceiveRow& taken = row(index);
    if (!taken.active || taken.count == 0 || taken.lastTime != now) {
        noteSighting(index, now);
        m_lastTimes[static_cast<std::size_t>(index)] = now;
    }
    if (taken.count == 0) {
        taken.firstId = frame.id();
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
    while (!m_instants.empty() && m_instants.back().time > now) {
        for (const int index : m_instants.back().rows) {
            m_ahead.push_back({m_instants.back().time, index});
        }
        endInstant(m_instants.back());
        m_instants.pop_back();
    }
}

void ReceiveTable::age(double now)
{
    while (!m_instants.empty() && now - m_instants.front().time > silentAfter) {
        for (const int index : m_instants.front().rows) {
            if (isSilent(index, now)) {
                silence(index);
            }
        }
        endInstant(m_instants.front());
        m_instants.pop_front();
    }
    // Kept until the clock has come that far again, or a later frame stands for the row.
    const auto isDone = [&](const Sighting& sighting) {
        if (isSilent(sighting.row, now)) {
            silence(sighting.row);
        }
        const ReceiveRow& seen = row(sighting.row);
        return !seen.active || seen.lastTime != sighting.time;
    };
    m_ahead.erase(std::remove_if(m_ahead.begin(), m_ahead.end(), isDone), m_ahead.end());
}

bool ReceiveTable::isSilent(int index, double now) const
{
    return now - m_lastTimes[static_cast<std::size_t>(index)] > silentAfter && row(index).active;
}

void ReceiveTable::silence(int index)
{
    row(index).active = false;
    markDirty(index);
}

void ReceiveTable::noteSighting(int index, double now)
{
    if (m_instants.empty() || m_instants.back().time != now) {
        std::vector<int> rows;
        if (!m_spareLists.empty()) {
            rows = std::move(m_spareLists.back());
            m_spareLists.pop_back();
        }
        m_instants.push_back({now, std::move(rows)});
    }
    m_instants.back().rows.push_back(index);
}

void ReceiveTable::endInstant(Instant& instant)
{
    instant.rows.clear();
    m_spareLists.push_back(std::move(instant.rows));
}
