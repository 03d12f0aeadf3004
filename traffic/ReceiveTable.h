#pragma once

#include "message/MessageCan.h"
#include "message/MessageContainer.h"

#include <cstdint>
#include <deque>
#include <unordered_map>
#include <vector>

class Filter;

/// One row of the Receive window: the last frame of one identifier, and what the screen shows of
/// it.
struct ReceiveRow
{
    static constexpr std::uint32_t neverShown = 99;

    zul::MessageCan msg;
    double lastTime = 0.0;    ///< application clock at the last frame, seconds
    bool active = true;       ///< a frame came within the last 0.5 s
    bool shownActive = false; ///< the `active` that the screen shows
    bool dirty = false;       ///< waits for its repaint
    std::uint32_t count = 0;  ///< frames that the row got
    /// Byte count for which the lines below the first were last hidden or shown.
    std::uint32_t shownByteCount = neverShown;
};

/// The rows of the Receive window, one for each identifier, in the order of their first frame.
///
/// `update` costs the same for each frame, however many rows there are.
class ReceiveTable
{
public:
    /// A row is silent when its last frame is older than this, in seconds.
    static constexpr double silentAfter = 0.5;

    /// Takes one batch. Every frame counts for `receivedTotal`; those that come while the input is
    /// off or that `filter` rejects do nothing else. Then rows whose age exceeds `silentAfter` turn
    /// silent; `now` is the application clock in seconds.
    void update(const MessageContainer& batch, bool inputOn, const Filter& filter, double now);

    /// Forgets all rows; `receivedTotal` stays.
    void clear();

    int rowCount() const { return static_cast<int>(m_rows.size()); }
    ReceiveRow& row(int index) { return m_rows[static_cast<std::size_t>(index)].row; }
    const ReceiveRow& row(int index) const { return m_rows[static_cast<std::size_t>(index)].row; }

    /// Indices of the rows that changed since `clearDirty`, each once.
    const std::vector<int>& dirtyRows() const { return m_dirty; }
    void clearDirty();
    /// Every row is to be repainted.
    void markAllDirty();

    /// All frames seen so far, whatever became of them; wraps at 32 bits.
    std::uint32_t receivedTotal() const { return m_receivedTotal; }

private:
    static constexpr int none = -1;

    // The active rows form a list in the order of their last frames, so that ageing looks at its
    // front alone.
    struct Entry
    {
        ReceiveRow row;
        int previous = none;
        int next = none;
        bool isLinked = false;
    };

    int findOrAddRow(std::uint32_t key);
    void takeFrame(int index, const zul::MessageCan& frame, double now);
    void markDirty(int index);
    void linkAtEnd(int index);
    void unlink(int index);
    void age(double now);
    Entry& entry(int index) { return m_rows[static_cast<std::size_t>(index)]; }

    std::deque<Entry> m_rows;
    std::unordered_map<std::uint32_t, int> m_index;
    std::vector<int> m_dirty;
    int m_oldest = none;
    int m_newest = none;
    double m_latest = 0.0;      // the latest `now` so far
    double m_orderedFrom = 0.0; // until then the list is not in order of time
    std::uint32_t m_receivedTotal = 0;
};
