/// Text files, line by line.
#pragma once

#include "htdrdd91/base/text.h"
#include "htdrdd91/platform/file_system.h"

#include <memory>

namespace htdrdd {

enum class Encoding {
    CodePage, ///< single bytes, Windows-1252
    Unicode,  ///< UTF-16 little-endian with a byte order mark
};

/// Reads a text file. The whole text is loaded at once; lines refer to it and live as long as the reader.
class TextReader {
public:
    /// Skips the byte order mark of a Unicode text and drops an odd last byte.
    TextReader(FileSystem& files, TextView path, Encoding encoding, Where at = Where::current());

    TextReader(const TextReader&) = delete; // lines refer to it
    TextReader& operator=(const TextReader&) = delete;
    ~TextReader() = default;

    /// True if no text is left.
    [[nodiscard]] bool AtEndOfStream() const noexcept { return rest_.empty(); }
    /// The next line without its end. A line ends with a line feed, with at most one carriage return before
    /// it; a carriage return alone is content. Fails with 62 at the end.
    [[nodiscard]] TextView ReadLine(Where at = Where::current());
    /// All remaining text. Fails with 62 at the end.
    [[nodiscard]] TextView ReadAll(Where at = Where::current());

private:
    Bytes bytes_;
    Text text_; ///< the text, unless `bytes_` holds it unchanged
    TextView rest_;
};

/// Writes a new text file in Unicode that only its owner can access. Lines end with carriage return and line
/// feed.
class TextWriter {
public:
    TextWriter(FileSystem& files, TextView path, Where at = Where::current());
    /// The line being written, at the end of the unwritten text: append to it and call EndLine.
    [[nodiscard]] Text& Line() noexcept { return text_; }
    void EndLine(Where at = Where::current());
    void WriteLine(TextView line, Where at = Where::current()) {
        text_ += line;
        EndLine(at);
    }
    /// Writes the remaining text and closes the file. Without Close the file is incomplete.
    void Close(Where at = Where::current());

private:
    void Flush(Where at);

    std::unique_ptr<FileWriter> file_;
    Text text_; ///< not yet in the file
};

/// Appends to a text file in the code page; creates a missing file.
class TextAppender {
public:
    TextAppender(FileSystem& files, TextView path, Where at = Where::current());
    /// Writes a line and its end (carriage return and line feed).
    void WriteLine(TextView line, Where at = Where::current());
    void Close(Where at = Where::current());

private:
    std::unique_ptr<FileWriter> file_;
};

} // namespace htdrdd
