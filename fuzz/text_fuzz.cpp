/// Numbers, texts and lists: what is written comes back, and whatever is read fails in the known ways only.
#include "foundation/basPublicCipher.h"
#include "foundation/basPublicSort.h"
#include "foundation/basPublicText.h"
#include "foundation/clsHTDRDDStrings.h"
#include "fuzzing.h"
#include "platform/number.h"
#include "platform/region.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>

namespace htdrdd::fuzz {
namespace {

constexpr std::array<std::int64_t, 16> kTens = [] {
    std::array<std::int64_t, 16> tens{1};
    for (std::size_t i = 1; i < tens.size(); ++i) tens[i] = tens[i - 1] * 10;
    return tens;
}();

/// A number that was read, or none where it failed as reading may fail.
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

/// The digits of a number with a fixed number of places, from its 15 digits in whole numbers.
Text FixedDigits(double value, std::int32_t places) {
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "%.14e", std::fabs(value)); // the C locale is in force
    const int exponent = std::atoi(digits.data() + 17);
    std::string all = std::string(1, digits[0]) + std::string(digits.data() + 2, 14);
    const int shift = exponent - 14 + places;
    if (shift >= 0) {
        all.append(static_cast<std::size_t>(shift), '0');
    } else {
        const std::int64_t whole = std::stoll(all);
        const std::int64_t unit = shift >= -15 ? kTens[static_cast<std::size_t>(-shift)] : 0;
        all = std::to_string(unit == 0 ? 0 : whole / unit + (whole % unit * 2 >= unit ? 1 : 0));
    }
    all.erase(0, std::min(all.find_first_not_of('0'), all.size()));
    const auto least = static_cast<std::size_t>(places) + 1;
    if (all.size() < least) all.insert(0, least - all.size(), '0');
    Text text(all.begin(), all.end());
    text.insert(text.size() - static_cast<std::size_t>(places), 1, CurrentRegion().decimalMark);
    const bool zero = all.find_first_not_of('0') == std::string::npos;
    return value < 0 && !zero ? u'-' + text : text;
}

void CheckNumber(double value, std::int32_t places) {
    if (!std::isfinite(value)) return;
    const Text text = InvariantText(value);
    const auto back = Number([&] { return LeadingNumber(text); }, false);
    // 15 digits of the very largest doubles are a larger number than any double.
    Demand(back.has_value() || std::fabs(value) > 1.797693134862315e308);
    if (back) Demand(InvariantText(*back) == text);
    Demand(Number([&] { return RegionalNumber(RegionalText(value)); }, false) == back);
    for (const std::int32_t some : {0, 1, 3, places})
        Demand(FixedText(value, some) == FixedDigits(value, some));
}

void CheckNumberText(TextView text, std::int32_t places) {
    const auto leading = Number([&] { return LeadingNumber(text); }, false);
    if (leading) CheckNumber(*leading, places);
    const auto regional = Number([&] { return RegionalNumber(text); }, true);
    if (regional) CheckNumber(*regional, places);
    const double any = basPublic::TextToDouble(text);
    Demand(std::isfinite(any));
    if (regional && text.find(u'.') == TextView::npos && !text.ends_with(u'%')) Demand(any == *regional);
}

void CheckText(const Text& text) {
    const int complaints = Host().complaints;
    const Text hex = basPublic::UnicodeToHex(text);
    const Text enciphered = basPublic::Encrypt(text);
    Demand(basPublic::HexToUnicode(hex) == text);
    Demand(basPublic::Decrypt(enciphered) == hex && enciphered.size() % 16 == 0);
    Demand(Host().complaints == complaints);
    static_cast<void>(basPublic::Decrypt(text));
    static_cast<void>(basPublic::HexToUnicode(text));

    Demand(SameText(text, UpperCased(text)) || text.find_first_of(u"\u0131\u1e9e") != Text::npos);
    Demand(UpperCased(UpperCased(text)) == UpperCased(text));
    Demand(ToUtf8(FromUtf8(ToUtf8(text))) == ToUtf8(text));
    Demand(Join(Split(text, u","), u",") == text);
}

void CheckBytes(const std::string& bytes) {
    Demand(ToCodePage(FromCodePage(bytes)) == bytes);
    Demand(ToNativePath(FromNativePath(bytes)) == bytes);
}

void CheckList(const Text& text) {
    const auto list = Make<clsHTDRDDStrings>();
    list->AddDelimitedString(text);
    Demand(list->AsString() == text);
    const Array<Text> pieces = Split(text, u"\t");
    const std::int32_t trailing = text.ends_with(u'\t') ? 1 : 0;
    Demand(list->Count() == pieces.UpperBound() + 1);
    Demand(basPublic::NumStringItems(text, u"\t") == list->Count() - trailing);
    for (const Text& piece : pieces.Items()) {
        Demand(list->Exists(piece) && SameText(list->Item(Index(piece)), piece));
        Demand(list->Locate(piece, Compare::Exact) > 0);
    }

    for (const bool descending : {false, true}) {
        Array<Text> exact = pieces;
        Array<Text> numeric = pieces;
        basPublic::QuickSortArray(exact, 0, exact.UpperBound(), descending);
        basPublic::QuickSortNumericStringArray(numeric, 0, numeric.UpperBound(), descending);
        Demand(descending ? std::ranges::is_sorted(exact.Items(), std::ranges::greater())
                          : std::ranges::is_sorted(exact.Items()));
        Demand(std::ranges::is_permutation(numeric.Items(), pieces.Items()));
    }
}

/// Ways to write numbers, one for each first byte.
Region RegionOf(std::uint8_t choice) {
    constexpr std::array<char16_t, 4> kDecimalMarks{u'.', u',', u'.', u','};
    constexpr std::array<char16_t, 4> kGroupMarks{u',', u'.', u'\u2019', u'\u202f'};
    constexpr std::array<TextView, 4> kCurrencies{u"$", u"\u20ac", u"CHF", u""};
    Region region;
    region.decimalMark = kDecimalMarks[choice % 4];
    region.groupMark = kGroupMarks[choice % 4];
    region.currencySign = kCurrencies[choice / 4 % 4];
    return region;
}

} // namespace
} // namespace htdrdd::fuzz

/// The first byte chooses the region, the second the places; the rest is the text, both as bytes and as
/// units, and its first 8 bytes are a double.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace htdrdd;
    using namespace htdrdd::fuzz;
    if (size < 2) return 0;
    Host();
    CurrentRegion() = RegionOf(data[0]);
    const std::int32_t places = data[1] % 40;
    const std::string bytes(data + 2, data + size);
    Text units(bytes.size() / 2, u'\0');
    std::memcpy(units.data(), bytes.data(), units.size() * sizeof(char16_t));

    CheckBytes(bytes);
    for (const Text& text : {FromCodePage(bytes), units}) {
        CheckNumberText(text, places);
        CheckText(text);
        CheckList(text);
    }
    if (double value = 0; bytes.size() >= sizeof value) {
        std::memcpy(&value, bytes.data(), sizeof value);
        CheckNumber(value, places);
    }
    return 0;
}
