#pragma once

#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/ObjectTrace.h"
#include "traffic/TraceFiles.h"

#include <QDateTime>

#include <cstdint>
#include <string>

class Filter;
class ProfileStore;

/// What a Trace window does: which frames it takes, the lines that it shows, and the files that it
/// writes. Texts are Latin-1.
class TraceRecorder
{
public:
    enum class State : std::int32_t {
        Stopped = 0,
        Waiting = 1, ///< has its text, but nothing brings it about
        Active = 2
    };

    /// Blocks that the text view keeps. When it has grown beyond that, it is cut to the smaller
    /// number, so that the oldest ones go in one step.
    static constexpr int maxBlocks = 100'000;
    static constexpr int blocksAfterCut = 98'000;
    /// Characters that the text view keeps: a day of a loaded bus, whose batches of hundreds of
    /// lines are one block each, would take all memory before the blocks are too many.
    static constexpr int maxCharacters = 64 * 1024 * 1024;

    /// What one batch gave.
    struct Update
    {
        bool isTaken = false;  ///< false: it came from another interface, and nothing has changed
        bool hasLines = false; ///< at least one frame was accepted
        std::string html;      ///< the lines of all accepted frames
    };

    /// Takes one batch: counts its frames; shows and, while a trace is active, writes those that
    /// come while the input is on and that `filter` accepts.
    Update receive(const MessageContainer& batch, const TraceSettings& settings,
                   const Filter& filter, const ProfileStore& store);

    /// Starts a trace if none is active, or else ends it. `directory` is where the files go;
    /// `now` is the application clock in seconds, which names them. False if the files could not be
    /// opened, which `failureText` tells.
    ///
    /// Deliberate: the line number goes on through all traces.
    [[nodiscard]] bool startOrStop(const std::string& directory, double now);
    /// What the window does once it has told of a failed start. Deliberate: the state is active all
    /// the same, with 0 records, and nothing is written until the next start.
    void activateWithoutFiles() { m_state = State::Active; }

    /// Path without suffix of the files of a trace that starts at `start`.
    ///
    /// Deliberate: an empty directory names files in the root.
    static std::string baseNameOf(const std::string& directory, const QDateTime& start);

    /// How many of its oldest blocks a view of this size is to drop.
    static int surplusBlocks(int blockCount, int characterCount, int most = maxCharacters);

    /// The view has been cleared: lines count from 0 again, also those of a running trace's file.
    void clear() { m_lineNumber = 0; }

    State state() const { return m_state; }
    /// Accepted frames since the last `clear`.
    std::uint32_t lineNumber() const { return m_lineNumber; }
    /// All frames seen, whatever became of them; wraps at 32 bits.
    std::uint32_t receivedTotal() const { return m_receivedTotal; }
    /// Frames written since the trace started.
    std::uint32_t recordCount() const { return m_recordCount; }
    /// Deliberate: counts from 2 on, and the header of the file does not count.
    std::uint64_t byteCount() const { return m_byteCount; }
    /// Path of the running trace without suffix.
    const std::string& baseName() const { return m_baseName; }

    /// "Start Trace" or "Stop Trace".
    const char* buttonText() const;
    /// The label that tells the state, in rich text.
    std::string statusText() const { return statusText(m_state); }
    /// The same for any state.
    std::string statusText(State state) const;
    /// Why the last start failed.
    std::string failureText() const;

private:
    static constexpr std::uint64_t firstByteCount = 2;

    void takeFrame(const zul::MessageCan& frame, const TraceSettings& settings,
                   const ProfileStore& store, std::string& html);
    bool openFiles(const std::string& directory, double now);

    TraceFiles m_files;
    State m_state = State::Stopped;
    std::uint32_t m_lineNumber = 0;
    std::uint32_t m_receivedTotal = 0;
    std::uint32_t m_recordCount = 0;
    std::uint64_t m_byteCount = firstByteCount;
    std::string m_baseName;
    std::string m_line; // kept for its storage
};
