#include "host/input.h"

#include "foundation/basPublicFiles.h"

#include <array>
#include <cstdio>

namespace htdrdd::host {
namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

/// The name of a temporary file with all of standard input; empty where there is none.
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
    Text text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = kUtf16Mark.size(); i < bytes.size(); i += 2)
        text += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                      static_cast<unsigned char>(bytes[i + 1]) << 8U);
    return text;
}

std::string EncodedText(TextView text) {
    std::string bytes(kUtf16Mark);
    bytes.reserve(bytes.size() + text.size() * 2);
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFFU);
        bytes += static_cast<char>(unit >> 8U);
    }
    return bytes;
}

} // namespace htdrdd::host
