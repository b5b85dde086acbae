#include "htdrdd91/component/layout/automation.h"

#include <cstdlib>
#include <string>

namespace {

/// The byte count of a text, stored before its units in a block of 8 bytes, so that the units are aligned.
using Length = std::uint32_t;
constexpr std::size_t kFront = 8;

} // namespace

BSTR SysAllocStringLen(const OLECHAR* text, UINT length) {
    if (length > (UINT32_MAX - kFront) / sizeof(OLECHAR) / 2) return nullptr;
    const std::size_t bytes = std::size_t{length} * sizeof(OLECHAR);
    auto* const block = static_cast<char*>(std::calloc(1, kFront + bytes + sizeof(OLECHAR)));
    if (block == nullptr) return nullptr;
    const auto counted = static_cast<Length>(bytes);
    std::memcpy(block + kFront - sizeof counted, &counted, sizeof counted);
    if (text != nullptr && bytes > 0) std::memcpy(block + kFront, text, bytes);
    return static_cast<BSTR>(static_cast<void*>(block + kFront));
}

BSTR SysAllocString(const OLECHAR* text) {
    if (text == nullptr) return nullptr;
    return SysAllocStringLen(text, static_cast<UINT>(std::char_traits<OLECHAR>::length(text)));
}

void SysFreeString(BSTR text) {
    if (text != nullptr) std::free(static_cast<char*>(static_cast<void*>(text)) - kFront);
}

UINT SysStringLen(BSTR text) {
    if (text == nullptr) return 0;
    Length bytes = 0;
    std::memcpy(&bytes, static_cast<const char*>(static_cast<void*>(text)) - sizeof bytes, sizeof bytes);
    return bytes / static_cast<UINT>(sizeof(OLECHAR));
}
