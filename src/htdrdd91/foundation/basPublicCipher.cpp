#include "htdrdd91/foundation/basPublicCipher.h"

#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/basPublicText.h"
#include "htdrdd91/platform/block_cipher.h"
#include "htdrdd91/platform/encoding.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>

namespace htdrdd::basPublic {
namespace {

/// The key, computed character by character; it is stored nowhere in one piece.
std::string CipherKey() {
    std::string key;
    for (const int step : {23, 41, 8, 67, 19, 52, 77, 30, 5, 61, 44, 12, 70, 36, 58, 27})
        key += static_cast<char>('!' + (step * 31 + static_cast<int>(key.size()) * 17) % 90);
    return key;
}

/// The cipher with its key, or a null pointer if the key is unusable. It is kept, since preparing it takes as
/// long as enciphering a page of text.
const BlockCipher* Cipher() {
    static const std::unique_ptr<const BlockCipher> cipher = [] {
        auto made = std::make_unique<BlockCipher>();
        return made->SetKey(CipherKey()) ? std::move(made) : nullptr;
    }();
    return cipher.get();
}

void AppendHex(Text& hex, unsigned char byte) {
    constexpr TextView kDigits = u"0123456789ABCDEF";
    hex += kDigits[byte >> 4U];
    hex += kDigits[byte & 0xFU];
}

/// Value of a hexadecimal digit, or -1.
int HexDigit(char16_t c, bool upperOnly) {
    if (c >= u'0' && c <= u'9') return c - u'0';
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    if (!upperOnly && c >= u'a' && c <= u'f') return c - u'a' + 10;
    return -1;
}

/// The bytes of pairs of hexadecimal digits. An invalid pair fails with 13.
std::string BytesOf(TextView hex, bool upperOnly) {
    std::string bytes;
    bytes.reserve(hex.size() / 2);
    for (; hex.size() >= 2; hex.remove_prefix(2)) {
        const int high = HexDigit(hex[0], upperOnly);
        const int low = HexDigit(hex[1], upperOnly);
        if (high < 0 || low < 0) throw Failure(Err::TypeMismatch);
        bytes += static_cast<char>(high << 4 | low);
    }
    return bytes;
}

Text CipherEncrypt(const BlockCipher& cipher, TextView text) {
    Text hex;
    for (const char byte : cipher.Encrypt(ToCodePage(text))) AppendHex(hex, static_cast<unsigned char>(byte));
    return hex;
}

Text CipherDecrypt(const BlockCipher& cipher, TextView hex) {
    if (hex.size() % (2 * BlockCipher::kBlock) != 0) throw Failure(Err::Argument);
    return FromCodePage(cipher.Decrypt(BytesOf(hex, true)));
}

} // namespace

Text Encrypt(TextView sText) noexcept {
    Text result;
    try {
        if (sText.empty()) return result;
        const BlockCipher* const cipher = Cipher();
        if (cipher == nullptr) return result;
        Text plain = IsUnicodeBuild() ? UnicodeToHex(sText) : Text(sText);
        plain.resize((plain.size() + BlockCipher::kBlock - 1) / BlockCipher::kBlock * BlockCipher::kBlock,
                     u' ');
        result = CipherEncrypt(*cipher, plain);
    } catch (...) { ReportFailure(u"basPublic.Encrypt"); }
    return result;
}

Text Decrypt(TextView sText) noexcept {
    Text result;
    try {
        if (sText.empty()) return result;
        const BlockCipher* const cipher = Cipher();
        if (cipher == nullptr) return result;
        result = TrimmedEnd(CipherDecrypt(*cipher, sText));
    } catch (...) { ReportFailure(u"basPublic.Decrypt"); }
    return result;
}

Text UnicodeToHex(TextView sText) noexcept {
    Text result;
    try {
        result.reserve(sText.size() * 4);
        for (const char byte : ToUtf16(sText)) AppendHex(result, static_cast<unsigned char>(byte));
    } catch (...) { ReportFailure(u"basPublic.UnicodeToHex"); }
    return result;
}

Text HexToUnicode(TextView sHex) noexcept {
    Text result;
    try {
        if (sHex.size() < 2) return result;
        std::string bytes = BytesOf(sHex, false);
        if (sHex.size() % 2 != 0) {
            // There is room for half the length in bytes, rounded half to even: a single last digit fits
            // after 1 or 3 whole bytes, but not after 2 or 4.
            if (bytes.size() % 2 == 0) throw Failure(Err::Subscript);
            const int digit = HexDigit(sHex.back(), false);
            if (digit < 0) throw Failure(Err::TypeMismatch);
            bytes += static_cast<char>(digit);
        }
        result = FromUtf16(bytes);
    } catch (...) {
        result.clear();
        ReportFailure(u"basPublic.HexToUnicode");
    }
    return result;
}

} // namespace htdrdd::basPublic
