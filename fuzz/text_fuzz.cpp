/// Numbers, texts and sorting: written values are read back, and reading fails only in the known ways.
#include "fuzzing.h"
#include "htdrdd91/base/array.h"
#include "htdrdd91/base/number.h"
#include "htdrdd91/base/region.h"
#include "htdrdd91/foundation/basPublicCipher.h"
#include "htdrdd91/foundation/basPublicSort.h"
#include "htdrdd91/foundation/basPublicText.h"
#include "htdrdd91/platform/encoding.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>

namespace htdrdd::fuzz {
namespace {

/// The number that was read, or none after one of the allowed failures.
template <class Read>
std::optional<double> Number(Read read, bool mayMismatch) {
    try {
        const double value = read();
        Demand(std::isfinite(value) && !(value == 0 && std::signbit(value)));
        return value;
    } catch (const Failure& failure) {
        const auto number = static_cast<Err>(failure.Number());
        Demand(number == Err::Overflow || (mayMismatch && number == Err::TypeMismatch));
        return {};
    }
}

void CheckNumber(double value, std::int32_t places) {
    if (!std::isfinite(value)) return;
    const Text text = InvariantText(value);
    const auto back = Number([&] { return LeadingNumber(text); }, false);
    // Rounded to 15 digits, the largest doubles exceed every double.
    Demand(back.has_value() || std::fabs(value) > 1.797693134862315e308);
    if (back) Demand(InvariantText(*back) == text);
    Demand(Number([&] { return RegionalNumber(RegionalText(value)); }, false) == back);
    // Rounding moves a number by at most half of its last place, apart from the limit of 15 digits.
    const Text fixed = FixedText(value, places);
    const double shown = basPublic::TextToDouble(fixed);
    Demand(FixedNumber(value, places).value_or(shown) == shown);
    const double moved = std::fabs(shown - value);
    Demand(moved <= .5 * std::pow(10, -places) + std::fabs(value) * 1e-14 || std::fabs(value) > 1e308);
    Demand(fixed.size() - fixed.rfind(CurrentRegion().decimalMark) == static_cast<std::size_t>(places) + 1);
}

void CheckNumberText(TextView text, std::int32_t places) {
    const auto leading = Number([&] { return LeadingNumber(text); }, false);
    if (leading) CheckNumber(*leading, places);
    if (const auto regional = Number([&] { return RegionalNumber(text); }, true))
        CheckNumber(*regional, places);
    Demand(std::isfinite(basPublic::TextToDouble(text)));
}

void CheckSorting(TextView text) {
    const Array<Text> pieces = Split(text, u"\t");
    for (const bool descending : {false, true}) {
        Array<Text> numeric = pieces;
        basPublic::QuickSortNumericStringArray(numeric, 0, numeric.UpperBound(), descending);
        Demand(std::ranges::is_permutation(numeric.Items(), pieces.Items()));
    }
}

/// Decimal mark, group mark and currency sign of regions.
constexpr std::array<TextView, 4> kRegions{u".,$", u",.\u20ac", u".\u2019CHF", u",\u202f"};

} // namespace
} // namespace htdrdd::fuzz

/// The first byte chooses the region, the second the number of places. The rest is the text, as bytes and as
/// UTF-16 units, and its first 8 bytes are a double.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace htdrdd;
    using namespace htdrdd::fuzz;
    if (size < 2) return 0;
    Host();
    const TextView marks = kRegions[data[0] % kRegions.size()];
    CurrentRegion().decimalMark = marks[0];
    CurrentRegion().groupMark = marks[1];
    CurrentRegion().currencySign = marks.substr(2);
    const std::int32_t places = data[1] % 40;
    const std::string bytes(data + 2, data + size);
    Text units(bytes.size() / 2, u'\0');
    std::memcpy(units.data(), bytes.data(), units.size() * sizeof(char16_t));

    Demand(ToCodePage(FromCodePage(bytes)) == bytes);
    Demand(ToNativePath(FromNativePath(bytes)) == bytes);
    for (const Text& text : {FromCodePage(bytes), units}) {
        CheckNumberText(text, places);
        CheckSorting(text);
        Demand(ToUtf8(FromUtf8(ToUtf8(text))) == ToUtf8(text));
        static_cast<void>(basPublic::Decrypt(text));
        static_cast<void>(basPublic::HexToUnicode(text));
    }
    if (double value = 0; bytes.size() >= sizeof value) {
        std::memcpy(&value, bytes.data(), sizeof value);
        CheckNumber(value, places);
    }
    return 0;
}
