#include "host/files/input.h"

#include "htdrdd91/foundation/basPublicFiles.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/file_system.h"

#include <array>
#include <cstdio>

namespace htdrdd::host {
namespace {

/// Copies standard input to a temporary file and returns its path; empty if standard input can't be read.
Text CopyOfStandardInput() {
    std::string bytes;
    std::array<char, 65536> part{};
    while (const std::size_t size = std::fread(part.data(), 1, part.size(), stdin))
        bytes.append(part.data(), size);
    if (std::ferror(stdin) != 0) return {};
    Temporary copy(basPublic::GetUniqueFileName({}, {}, {}));
    const auto file = CurrentFileSystem().Create(copy.Path());
    file->Write(bytes);
    file->Close();
    Text path = copy.Path();
    copy.Keep();
    return path;
}

} // namespace

Text InputName(const std::string& file) { return file == "-" ? u"standard input" : FromNativePath(file); }

Input::Input(const std::string& file)
    : path_(file == "-" ? Text() : FromNativePath(file)), name_(InputName(file)),
      copy_(file == "-" ? CopyOfStandardInput() : Text()) {}

std::optional<Text> DecodedText(std::string_view bytes) {
    if (!bytes.starts_with(kUtf16Mark)) {
        if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
        Text text = FromUtf8(bytes);
        if (ToUtf8(text) != bytes) return {};
        return text;
    }
    if (bytes.size() % 2 != 0) return {};
    return FromUtf16(bytes.substr(kUtf16Mark.size()));
}

} // namespace htdrdd::host
