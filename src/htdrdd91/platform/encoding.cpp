#include "htdrdd91/platform/encoding.h"

#include <unicode/ucnv.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <memory>

namespace htdrdd {
namespace {

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

/// The characters of the bytes 0x80 to 0xFF.
using UpperHalf = std::array<char16_t, 128>;

UpperHalf LoadUpperHalf() {
    UErrorCode status = U_ZERO_ERROR;
    const Converter converter(ucnv_open("windows-1252", &status), &ucnv_close);
    UpperHalf characters{};
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const char byte = static_cast<char>(i + 0x80);
        status = U_ZERO_ERROR;
        if (!converter || ucnv_toUChars(converter.get(), &characters[i], 1, &byte, 1, &status) != 1)
            characters[i] = static_cast<char16_t>(i + 0x80);
    }
    return characters;
}

const UpperHalf& CodePageUpperHalf() {
    static const UpperHalf characters = LoadUpperHalf();
    return characters;
}

void AppendCharacter(std::string& out, UChar32 character) {
    std::array<std::uint8_t, U8_MAX_LENGTH> buffer{};
    std::int32_t length = 0;
    U8_APPEND_UNSAFE(buffer.data(), length, character);
    out.append(buffer.begin(), buffer.begin() + length);
}

void AppendCharacter(Text& out, UChar32 character) {
    if (U_IS_BMP(character)) {
        out += static_cast<char16_t>(character);
    } else {
        out += U16_LEAD(character);
        out += U16_TRAIL(character);
    }
}

/// Calls `character(UChar32)` for each character; an unpaired surrogate is a character of its own.
template <class Each>
void EachCharacter(TextView text, Each character) {
    for (std::size_t i = 0; i < text.size();) {
        UChar32 c = 0;
        U16_NEXT(text.data(), i, text.size(), c);
        character(c);
    }
}

/// Decodes UTF-8 and passes each invalid byte to `stray`.
template <class Stray>
Text Decode(std::string_view bytes, Stray stray) {
    Text out;
    out.reserve(bytes.size());
    const auto* const data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    for (std::size_t i = 0; i < bytes.size();) {
        const std::size_t start = i;
        UChar32 c = 0;
        U8_NEXT(data, i, bytes.size(), c);
        if (c >= 0) {
            AppendCharacter(out, c);
        } else {
            i = start + 1;
            out += stray(data[start]);
        }
    }
    return out;
}

constexpr UChar32 kReplacement = 0xFFFD;
constexpr char16_t kStrayByte = 0xDC00; // U+DC80 to U+DCFF stand for the bytes 80 to FF

} // namespace

std::string ToUtf8(TextView text) {
    std::string out;
    out.reserve(text.size());
    EachCharacter(text, [&](UChar32 c) { AppendCharacter(out, U_IS_SURROGATE(c) ? kReplacement : c); });
    return out;
}

Text FromUtf8(std::string_view bytes) {
    return Decode(bytes, [](std::uint8_t) { return static_cast<char16_t>(kReplacement); });
}

std::string ToNativePath(TextView text) {
    std::string out;
    out.reserve(text.size());
    EachCharacter(text, [&](UChar32 c) {
        if (c >= kStrayByte + 0x80 && c <= kStrayByte + 0xFF)
            out += static_cast<char>(c - kStrayByte);
        else
            AppendCharacter(out, c);
    });
    return out;
}

Text FromNativePath(std::string_view bytes) {
    return Decode(bytes, [](std::uint8_t byte) { return static_cast<char16_t>(kStrayByte + byte); });
}

Text FromCharacterSet(std::string_view bytes, const char* name) {
    UErrorCode status = U_ZERO_ERROR;
    const Converter converter(ucnv_open(name, &status), &ucnv_close);
    Text text(bytes.size() * 2, u'\0'); // a byte decodes to at most two units
    const auto length =
        converter ? ucnv_toUChars(converter.get(), text.data(), static_cast<std::int32_t>(text.size()),
                                  bytes.data(), static_cast<std::int32_t>(bytes.size()), &status)
                  : 0;
    if (U_FAILURE(status)) return FromUtf8(bytes);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::string ToUtf16(TextView text) {
    std::string bytes(text.size() * 2, '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        bytes[2 * i] = static_cast<char>(text[i] & 0xFF);
        bytes[2 * i + 1] = static_cast<char>(text[i] >> 8);
    }
    return bytes;
}

Text FromUtf16(std::string_view bytes, std::endian order) {
    const std::size_t low = order == std::endian::little ? 0 : 1;
    Text text(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<char16_t>(static_cast<unsigned char>(bytes[2 * i + low]) |
                                        static_cast<unsigned char>(bytes[2 * i + 1 - low]) << 8);
    return text;
}

Text FromCodePage(std::string_view bytes) {
    const UpperHalf& upper = CodePageUpperHalf();
    Text out(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), out.begin(), [&](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x80 ? char16_t{byte} : upper[byte - 0x80U];
    });
    return out;
}

std::string ToCodePage(TextView text) {
    const UpperHalf& upper = CodePageUpperHalf();
    std::string out;
    out.reserve(text.size());
    EachCharacter(text, [&](UChar32 c) {
        const auto* const found = std::find(upper.begin(), upper.end(), c);
        if (c < 0x80)
            out += static_cast<char>(c);
        else
            out += found == upper.end() ? '?' : static_cast<char>(0x80 + (found - upper.begin()));
    });
    return out;
}

} // namespace htdrdd
