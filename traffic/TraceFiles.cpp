#include "traffic/TraceFiles.h"

#include "traffic/TraceLayout.h"

namespace {

// Once a write has failed the file is left alone: records behind a gap would be read askew.
void append(std::FILE* file, const void* bytes, std::size_t count)
{
    if (file != nullptr && std::ferror(file) == 0) {
        std::fwrite(bytes, 1, count, file);
    }
}

} // namespace

bool TraceFiles::open(const std::string& baseName, const QDateTime& start)
{
    close();
    m_binary.reset(std::fopen((baseName + binarySuffix).c_str(), "wb"));
    m_ascii.reset(std::fopen((baseName + asciiSuffix).c_str(), "w"));
    const trace_layout::Header header = trace_layout::headerOf(start);
    append(m_binary.get(), header.data(), header.size());
    if (m_binary == nullptr || m_ascii == nullptr) {
        close();
        return false;
    }
    return true;
}

void TraceFiles::close()
{
    m_binary.reset();
    m_ascii.reset();
}

void TraceFiles::write(const zul::MessageCan& frame, std::string& line)
{
    const trace_layout::Record record = trace_layout::recordOf(frame);
    append(m_binary.get(), record.data(), record.size());
    line += '\n';
    append(m_ascii.get(), line.data(), line.size());
}
