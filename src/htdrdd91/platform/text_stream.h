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

/// A text file being read. It takes the whole text at once; lines refer to it and last as long as the reader.
class TextReader {
public:
    /// A Unicode text's byte order mark is skipped and an odd last byte is dropped.
    TextReader(FileSystem& files, TextView path, Encoding encoding, Where at = Where::current());

    TextReader(const TextReader&) = delete; // lines refer to it
    TextReader& operator=(const TextReader&) = delete;
    ~TextReader() = default;

    /// True as soon as nothing is left.
    [[nodiscard]] bool AtEndOfStream() const noexcept { return rest_.empty(); }
    /// The next line without its end, a line feed with at most one carriage return in front; a carriage
    /// return alone is content. Fails with 62 at the end.
    [[nodiscard]] TextView ReadLine(Where at = Where::current());
    /// All that is left. Fails with 62 at the end.
    [[nodiscard]] TextView ReadAll(Where at = Where::current());

private:
    Bytes bytes_;
    Text text_; ///< a text that isn't in `bytes_` as it stands
    TextView rest_;
};

/// A new text file being written, in Unicode and for its owner only. Lines end in carriage return and line
/// feed.
class TextWriter {
public:
    TextWriter(FileSystem& files, TextView path, Where at = Where::current());
    /// The line being written, at the end of what isn't in the file yet: append to it and call EndLine.
    [[nodiscard]] Text& Line() noexcept { return text_; }
    void EndLine(Where at = Where::current());
    void WriteLine(TextView line, Where at = Where::current()) {
        text_ += line;
        EndLine(at);
    }
    /// Only a writer that is closed has written all.
    void Close(Where at = Where::current());

private:
    void Flush(Where at);

    std::unique_ptr<FileWriter> file_;
    Text text_; ///< what isn't in the file yet
};

/// Appends to a text file in the code page; the file is made where it is missing.
class TextAppender {
public:
    TextAppender(FileSystem& files, TextView path, Where at = Where::current());
    /// Writes a line and its end, carriage return and line feed.
    void WriteLine(TextView line, Where at = Where::current());
    void Close(Where at = Where::current());

private:
    std::unique_ptr<FileWriter> file_;
};

} // namespace htdrdd
