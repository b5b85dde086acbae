#include "htdrdd91/platform/block_cipher.h"

#include <nettle/blowfish.h>

#include <cstdint>

namespace htdrdd {
namespace {

const std::uint8_t* In(std::string_view bytes) { return reinterpret_cast<const std::uint8_t*>(bytes.data()); }
std::uint8_t* Out(std::string& bytes) { return reinterpret_cast<std::uint8_t*>(bytes.data()); }

} // namespace

struct BlockCipher::Context {
    blowfish_ctx blowfish;
};

BlockCipher::BlockCipher() : context_(std::make_unique<Context>()) {}
BlockCipher::~BlockCipher() = default;

bool BlockCipher::SetKey(std::string_view key) noexcept {
    if (key.size() < BLOWFISH_MIN_KEY_SIZE || key.size() > BLOWFISH_MAX_KEY_SIZE) return false;
    return ::blowfish_set_key(&context_->blowfish, key.size(), In(key)) != 0;
}

std::string BlockCipher::Encrypt(std::string_view bytes) const {
    std::string out(bytes.size(), '\0');
    ::blowfish_encrypt(&context_->blowfish, bytes.size(), Out(out), In(bytes));
    return out;
}

std::string BlockCipher::Decrypt(std::string_view bytes) const {
    std::string out(bytes.size(), '\0');
    ::blowfish_decrypt(&context_->blowfish, bytes.size(), Out(out), In(bytes));
    return out;
}

} // namespace htdrdd
