/// The block cipher.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace htdrdd {

/// Blowfish on blocks of 8 bytes, each enciphered independently.
class BlockCipher {
public:
    BlockCipher();
    BlockCipher(const BlockCipher&) = delete;
    BlockCipher& operator=(const BlockCipher&) = delete;
    ~BlockCipher();

    static constexpr std::size_t kBlock = 8;

    /// Returns false if the key is unusable: too short, too long or weak.
    [[nodiscard]] bool SetKey(std::string_view key) noexcept;
    /// Both take whole blocks and return as many bytes.
    [[nodiscard]] std::string Encrypt(std::string_view bytes) const;
    [[nodiscard]] std::string Decrypt(std::string_view bytes) const;

private:
    struct Context;
    std::unique_ptr<Context> context_;
};

} // namespace htdrdd
