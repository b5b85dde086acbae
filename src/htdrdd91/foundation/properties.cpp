#include "htdrdd91/foundation/properties.h"

#include "htdrdd91/foundation/basError.h"

#include <algorithm>

namespace htdrdd {
namespace {

constexpr bool IsLineEnd(char16_t unit) noexcept { return unit == u'\r' || unit == u'\n'; }

} // namespace

void detail::AssignOnOneLine(Text& property, TextView value, TextView sLocation) noexcept {
    try {
        if (std::none_of(value.begin(), value.end(), IsLineEnd)) {
            property = value;
            return;
        }
        Text flat = Replaced(value, u"\r\n", u" ");
        std::replace_if(flat.begin(), flat.end(), IsLineEnd, u' ');
        property = std::move(flat);
    } catch (...) { ReportFailure(sLocation); }
}

} // namespace htdrdd
