/// The block cipher.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace htdrdd {

/// Blowfish on blocks of 8 bytes, each block by itself.
class BlockCipher {
public:
    BlockCipher();
    BlockCipher(const BlockCipher&) = delete;
    BlockCipher& operator=(const BlockCipher&) = delete;
    ~BlockCipher();

    static constexpr std::size_t kBlock = 8;

    /// False where the key can't be used: it is too short, too long or weak.
    [[nodiscard]] bool SetKey(std::string_view key) noexcept;
    /// Both take whole blocks and give as many bytes.
    [[nodiscard]] std::string Encrypt(std::string_view bytes) const;
    [[nodiscard]] std::string Decrypt(std::string_view bytes) const;

private:
    struct Context;
    std::unique_ptr<Context> context_;
};

} // namespace htdrdd
