#include "htdrdd91/base/text.h"

#include <unicode/uchar.h>

namespace htdrdd {

char16_t detail::UpperBeyondAscii(char16_t unit) noexcept { return static_cast<char16_t>(u_toupper(unit)); }

char16_t detail::FoldBeyondAscii(char16_t unit) noexcept {
    return static_cast<char16_t>(u_foldCase(unit, U_FOLD_CASE_DEFAULT));
}

} // namespace htdrdd
