#include "htdrdd91/base/text.h"

#include <algorithm>
#include <cstring>

namespace htdrdd {
namespace {

template <class Unit>
bool EqualUnits(TextView a, TextView b, Unit unit) noexcept {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), unit);
}

template <class Unit>
Text Mapped(TextView text, Unit unit) {
    Text mapped(text);
    std::transform(mapped.begin(), mapped.end(), mapped.begin(), unit);
    return mapped;
}

} // namespace

Text UpperCased(TextView text) { return Mapped(text, UpperUnit); }

Text Folded(TextView text) { return Mapped(text, FoldUnit); }

bool SameText(TextView a, TextView b, Compare mode) noexcept {
    if (mode == Compare::Exact) return a == b;
    return EqualUnits(a, b, [](char16_t x, char16_t y) { return x == y || FoldUnit(x) == FoldUnit(y); });
}

bool SameInUpperCase(TextView a, TextView b) noexcept {
    if (a.size() != b.size()) return false;
    // Most keys are already in the requested case, and bytes compare faster than units.
    if (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0) return true;
    return EqualUnits(a, b, [](char16_t x, char16_t y) { return x == y || UpperUnit(x) == UpperUnit(y); });
}

TextView TrimmedStart(TextView text) noexcept {
    if (!text.starts_with(u' ')) return text;
    text.remove_prefix(std::min(text.find_first_not_of(u' '), text.size()));
    return text;
}

TextView TrimmedEnd(TextView text) noexcept {
    if (!text.ends_with(u' ')) return text;
    return text.substr(0, text.find_last_not_of(u' ') + 1);
}

TextView Trimmed(TextView text) noexcept { return TrimmedEnd(TrimmedStart(text)); }

Text Replaced(TextView text, TextView what, TextView with) {
    Text out;
    if (!what.empty()) {
        for (std::size_t at = 0; (at = text.find(what)) != TextView::npos;) {
            out.append(text.substr(0, at)).append(with);
            text.remove_prefix(at + what.size());
        }
    }
    return out.append(text);
}

std::size_t NumPieces(TextView text, TextView delimiter) noexcept {
    std::size_t number = 0;
    for (Pieces pieces(text, delimiter); pieces.Next();) ++number;
    return number;
}

} // namespace htdrdd
