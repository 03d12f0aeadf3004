#pragma once

#include "message/MessageCan.h"

#include <QDateTime>

#include <cstdio>
#include <memory>
#include <string>

/// The two files of a running trace: a binary one with the suffix ".zlb" and a text with the suffix
/// ".zla". Nothing is flushed before they are closed.
class TraceFiles
{
public:
    static constexpr const char* binarySuffix = ".zlb";
    static constexpr const char* asciiSuffix = ".zla";

    /// Opens both files, in place of those of these names, and writes the header. `baseName` is the
    /// path without suffix, its bytes as the system takes them. False if either cannot be opened:
    /// then none is open. Files that were open before are closed.
    [[nodiscard]] bool open(const std::string& baseName, const QDateTime& start);
    void close();
    bool isOpen() const { return m_ascii != nullptr; }

    /// Writes one frame to both files. `line` is its text without the line end, which is added to
    /// it. The binary file ends before the first byte that cannot be written, and so does the text;
    /// nobody is told.
    void write(const zul::MessageCan& frame, std::string& line);

private:
    struct Closer
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    using File = std::unique_ptr<std::FILE, Closer>;

    File m_binary;
    File m_ascii;
};
