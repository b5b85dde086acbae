#include "htdrdd91/platform/text_stream.h"

#include "htdrdd91/platform/encoding.h"

#include <bit>
#include <cstring>
#include <utility>

namespace htdrdd {
namespace {

/// Position of the first line feed, or npos.
std::size_t FindLineFeed(TextView text) noexcept {
    // Searches for the byte, since memchr is fast in every C library; skips bytes that are half of another
    // character.
    const auto* const start = reinterpret_cast<const char*>(text.data());
    const char* const end = start + text.size() * sizeof(char16_t);
    for (const char* at = start; at < end; ++at) {
        at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
        if (at == nullptr) break;
        const std::size_t unit = static_cast<std::size_t>(at - start) / sizeof(char16_t);
        if (text[unit] == u'\n') return unit;
    }
    return TextView::npos;
}

constexpr std::size_t kFlushed = std::size_t{1} << 16U; // units

} // namespace

TextReader::TextReader(FileSystem& files, TextView path, Encoding encoding, Where at)
    : bytes_(files.Read(path, std::numeric_limits<std::size_t>::max(), at)) {
    std::string_view bytes = bytes_.View();
    if (encoding == Encoding::CodePage) {
        text_ = FromCodePage(bytes);
        bytes_ = {};
        rest_ = text_;
        return;
    }
    if (bytes.starts_with(kUtf16Mark)) bytes.remove_prefix(kUtf16Mark.size());
    if constexpr (std::endian::native == std::endian::little) {
        rest_ = TextView(reinterpret_cast<const char16_t*>(bytes.data()), bytes.size() / 2);
    } else {
        text_ = FromUtf16(bytes);
        rest_ = text_;
    }
}

TextView TextReader::ReadLine(Where at) {
    if (rest_.empty()) throw Failure(Err::PastEnd, at);
    const std::size_t feed = FindLineFeed(rest_);
    TextView line = rest_.substr(0, feed);
    rest_.remove_prefix(feed == TextView::npos ? rest_.size() : feed + 1);
    if (feed != TextView::npos && line.ends_with(u'\r')) line.remove_suffix(1);
    return line;
}

TextView TextReader::ReadAll(Where at) {
    if (rest_.empty()) throw Failure(Err::PastEnd, at);
    return std::exchange(rest_, {});
}

TextWriter::TextWriter(FileSystem& files, TextView path, Where at) : file_(files.Create(path, at)) {
    text_.reserve(kFlushed + kFlushed / 4);
    text_ = u'\uFEFF';
}

void TextWriter::EndLine(Where at) {
    text_ += u"\r\n";
    if (text_.size() >= kFlushed) Flush(at);
}

void TextWriter::Flush(Where at) {
    if constexpr (std::endian::native == std::endian::little)
        file_->Write({reinterpret_cast<const char*>(text_.data()), text_.size() * sizeof(char16_t)}, at);
    else
        file_->Write(ToUtf16(text_), at);
    text_.clear();
}

void TextWriter::Close(Where at) {
    Flush(at);
    file_->Close(at);
}

TextAppender::TextAppender(FileSystem& files, TextView path, Where at)
    : file_(files.OpenForAppending(path, at)) {}

void TextAppender::WriteLine(TextView line, Where at) { file_->Write(ToCodePage(line) + "\r\n", at); }

void TextAppender::Close(Where at) { file_->Close(at); }

} // namespace htdrdd
