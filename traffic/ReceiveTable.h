#pragma once

#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "profile/ProfileStore.h"
#include "traffic/IdentifierIndex.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

class Filter;

/// One row of the Receive window: the last frame of one identifier or parameter, and what the
/// screen shows of it.
struct ReceiveRow
{
    static constexpr std::uint32_t neverShown = 99;

    double lastTime = 0.0;     ///< application clock at the last frame, seconds
    std::uint32_t count = 0;   ///< frames that the row got
    std::uint32_t firstId = 0; ///< identifier of the frame that made the row
    bool active = true;        ///< a frame came within the last 0.5 s
    bool shownActive = false;  ///< the `active` that the screen shows
    bool dirty = false;        ///< waits for its repaint
    bool namesLost = false;    ///< an error frame was painted, which empties cells for good
    /// Byte count for which the lines below the first were last hidden or shown.
    std::uint32_t shownByteCount = neverShown;
    /// Rows right behind this one that take the same frames; counted in the first of them alone.
    std::uint32_t followers = 0;
    zul::MessageCan msg;
};

/// What a row of `ReceiveTable::showParameters` reads from its frames: a copy, since the profiles
/// may be loaded anew while the row stands.
struct ReceiveParameter
{
    ProfileParameter parameter;
    bool isKnown = false; ///< false if no profile has the identifier
};

/// The rows of the Receive window, in the order of their first frame.
///
/// `update` costs the same for each frame, however many rows there are; one that several rows share
/// costs as much for each of them.
class ReceiveTable
{
public:
    /// A row is silent when its last frame is older than this, in seconds.
    static constexpr double silentAfter = 0.5;

    /// One row for each identifier, as at first. Forgets all rows if they were others.
    void showIdentifiers();
    /// One row for each parameter that `index`, which outlives the table, has for an identifier;
    /// one that knows no parameter if there is none. Identifiers that differ in FSB alone share
    /// their rows. Forgets all rows if they were others.
    void showParameters(const ProfileStore::ParameterIndex& index);

    /// Takes one batch. Every frame counts for `receivedTotal`; those that come while the input is
    /// off or that `filter` rejects do nothing else. Then rows whose age exceeds `silentAfter` turn
    /// silent; `now` is the application clock in seconds.
    void update(const MessageContainer& batch, bool inputOn, const Filter& filter, double now);

    /// Forgets all rows; `receivedTotal` stays.
    void clear();

    int rowCount() const { return static_cast<int>(m_rows.size()); }
    ReceiveRow& row(int index) { return m_rows[static_cast<std::size_t>(index)]; }
    const ReceiveRow& row(int index) const { return m_rows[static_cast<std::size_t>(index)]; }
    /// Of a row of `showParameters`; there are none for others.
    const ReceiveParameter& parameter(int index) const
    {
        return m_parameters[static_cast<std::size_t>(index)];
    }

    /// Indices of the rows that changed since `clearDirty`, each once.
    const std::vector<int>& dirtyRows() const { return m_dirty; }
    void clearDirty();
    /// The row's last frame has been painted: what an error frame leaves as it stands or empties
    /// for good is that of the frames that were painted, and others may have come between.
    void notePainted(int index);
    /// The frame, no error frame, that a row of `showIdentifiers` was last painted for; null if
    /// there was none.
    const zul::MessageCan* paintedFrame(int index) const;
    /// Every row is to be repainted.
    void markAllDirty();

    /// All frames seen so far, whatever became of them; wraps at 32 bits.
    std::uint32_t receivedTotal() const { return m_receivedTotal; }

private:
    /// That a row had a frame at that time, in seconds.
    struct Sighting
    {
        double time;
        int row;
    };

    /// The rows that had a frame in the updates of one instant, in seconds; each once as a rule.
    struct Instant
    {
        double time;
        std::vector<int> rows;
    };

    // Frames whose index entries, and then rows, are on their way from memory together.
    static constexpr std::size_t framesAtOnce = 16;
    using Frames = std::array<const zul::MessageCan*, framesAtOnce>;

    void takeFrames(const Frames& frames, std::size_t count, double now);
    std::uint32_t keyOf(std::uint32_t identifier) const { return identifier & ~m_ignoredBits; }
    int findOrAddRows(std::uint32_t key);
    void addRow();
    void addParameterRows(std::uint32_t key);
    void takeFrame(int index, const zul::MessageCan& frame, double now);
    void markDirty(int index);
    void age(double now);
    void setBack(double now);
    bool isSilent(int index, double now) const;
    void silence(int index);
    void noteSighting(int index, double now);
    void endInstant(Instant& instant);

    std::vector<ReceiveRow> m_rows;
    IdentifierIndex m_index; // from the key to the first row that has it
    const ProfileStore::ParameterIndex* m_parameterIndex = nullptr; // null for rows of identifiers
    std::uint32_t m_ignoredBits = 0;                                // of identifiers
    std::vector<ReceiveParameter> m_parameters; // those of the rows of parameters
    std::vector<double> m_lastTimes; // those of the rows: ageing looks at no others but silent ones
    std::vector<std::optional<zul::MessageCan>> m_paintedFrames; // of rows that have been painted
    std::vector<int> m_dirty;
    // At least the last sighting of every active row, in order of time: ageing looks at the front
    // alone.
    std::deque<Instant> m_instants;
    std::vector<std::vector<int>> m_spareLists; // empty ones of instants gone by, for their storage
    // Those that lie ahead of a clock that was set back.
    std::vector<Sighting> m_ahead;
    double m_latest = 0.0; // the `now` of the last update
    std::uint32_t m_receivedTotal = 0;
};
