#include "traffic/TraceFileReader.h"

#include "core/Console.h"
#include "traffic/TraceLayout.h"
#include "traffic/TraceTextLine.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <new>

namespace {

constexpr std::size_t recordsAtOnce = 8192;
constexpr std::size_t charactersAtOnce = 65536;

/// Reads until `count` bytes are there or the file ends; the result is how many are.
std::size_t readBytes(QFile& file, char* bytes, std::size_t count)
{
    std::size_t done = 0;
    while (done < count) {
        const qint64 got = file.read(bytes + done, static_cast<qint64>(count - done));
        if (got <= 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    return done;
}

std::size_t readBytes(QFile& file, std::uint8_t* bytes, std::size_t count)
{
    return readBytes(file, reinterpret_cast<char*>(bytes), count);
}

std::uint64_t sizeOf(const QFile& file)
{
    return static_cast<std::uint64_t>(std::max<qint64>(file.size(), 0));
}

/// Makes room for what the file holds, so that nothing is moved while it is read.
void reserveRecords(const QFile& file, TraceFrames& trace, std::size_t maxFrames)
{
    const std::uint64_t size = sizeOf(file);
    if (size > trace_layout::headerSize) {
        const std::uint64_t count = (size - trace_layout::headerSize) / trace_layout::recordSize;
        trace.frames.reserve(std::min<std::uint64_t>(count, maxFrames));
    }
}

/// The same for a text, as the lines at its beginning let expect, and some more.
void reserveLines(const QFile& file, TraceFrames& trace, std::size_t maxFrames)
{
    const std::uint64_t buffers = sizeOf(file) / charactersAtOnce + 1;
    const std::uint64_t count = (trace.frames.size() + trace.frames.size() / 8 + 1) * buffers;
    try {
        trace.frames.reserve(std::min<std::uint64_t>(count, maxFrames));
    } catch (const std::exception&) { // it was a guess: the lines may still find room
    }
}

void readRecords(QFile& file, TraceFrames& trace, trace_layout::Order order, std::size_t maxFrames)
{
    using trace_layout::recordSize;
    reserveRecords(file, trace, maxFrames);
    std::vector<std::uint8_t> records(recordsAtOnce * recordSize);
    std::size_t count = recordsAtOnce;
    while (count == recordsAtOnce && trace.frames.size() < maxFrames) {
        count = readBytes(file, records.data(), records.size()) / recordSize;
        const std::size_t taken = std::min(count, maxFrames - trace.frames.size());
        for (std::size_t i = 0; i < taken; ++i) {
            trace.append(trace_layout::frameOf(&records[i * recordSize], order));
        }
    }
}

void readBinary(QFile& file, TraceFrames& trace, std::size_t maxFrames)
{
    trace_layout::Header header{};
    const std::size_t got = file.isOpen() ? readBytes(file, header.data(), header.size()) : 0;
    zul::print("readTraceFileBin endian 0x%x\n", unsigned{trace_layout::markerOf(header)});
    if (got == header.size()) {
        readRecords(file, trace, trace_layout::orderOf(header), maxFrames);
    }
    zul::print("readTraceFileBin Time %f %f\n", trace.firstTime, trace.lastTime);
}

/// Cuts a text into lines as it comes.
class LineReader
{
public:
    LineReader(TraceFrames& trace, std::size_t maxFrames) : m_trace(trace), m_maxFrames(maxFrames)
    {
    }

    bool isFull() const { return m_trace.frames.size() >= m_maxFrames; }

    void take(const char* text, std::size_t count)
    {
        const char* const end = text + count;
        while (text != end && !isFull()) {
            const auto left = static_cast<std::size_t>(end - text);
            const std::size_t most = std::min(left, maxTraceLine - m_length);
            const void* found = std::memchr(text, '\n', most);
            const auto* lineEnd = static_cast<const char*>(found);
            const auto part = lineEnd != nullptr ? static_cast<std::size_t>(lineEnd - text) : most;
            std::memcpy(m_line.data() + m_length, text, part);
            m_length += part;
            text += part;
            if (lineEnd != nullptr) {
                ++text;
            }
            if (lineEnd != nullptr || m_length == maxTraceLine) {
                endLine();
            }
        }
    }

    /// The text has ended.
    void finish()
    {
        if (m_length > 0 && !isFull()) {
            endLine();
        }
    }

private:
    void endLine()
    {
        std::string_view line(m_line.data(), m_length);
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        m_trace.append(frameOfTraceLine(line));
        m_length = 0;
    }

    TraceFrames& m_trace;
    std::size_t m_maxFrames;
    std::array<char, maxTraceLine> m_line{};
    std::size_t m_length = 0;
};

void readText(QFile& file, TraceFrames& trace, std::size_t maxFrames)
{
    if (!file.isOpen()) {
        return;
    }
    LineReader lines(trace, maxFrames);
    std::vector<char> text(charactersAtOnce);
    std::size_t count = charactersAtOnce;
    while (count == charactersAtOnce && !lines.isFull()) {
        count = readBytes(file, text.data(), text.size());
        const bool isFirst = trace.frames.empty();
        lines.take(text.data(), count);
        if (isFirst) {
            reserveLines(file, trace, maxFrames);
        }
    }
    lines.finish();
}

} // namespace

void readTraceFile(const QString& path, TraceFrames& trace, std::size_t maxFrames)
{
    std::vector<TraceFrame>().swap(trace.frames);
    const double firstTime = trace.firstTime;
    const double lastTime = trace.lastTime;
    QFile file(path);
    // A pipe would make the program wait for whoever is to write it.
    if (QFileInfo(path).isFile()) {
        file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    try {
        if (path.mid(path.lastIndexOf(QLatin1Char('.')) + 1) == QLatin1String("zla")) {
            readText(file, trace, maxFrames);
        } else {
            readBinary(file, trace, maxFrames);
        }
    } catch (const std::exception&) { // no room, or more than a vector can count
        std::vector<TraceFrame>().swap(trace.frames);
        trace.firstTime = firstTime;
        trace.lastTime = lastTime;
    }
}
