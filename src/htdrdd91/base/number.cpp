#include "htdrdd91/base/number.h"

#include "htdrdd91/base/region.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace htdrdd {
namespace {

constexpr std::size_t kExactDigits = 15; ///< integers of up to this many digits are exact as doubles
constexpr std::array<double, kExactDigits + 1> kTens{1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

constexpr bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
constexpr bool IsExponentMark(char16_t c) { return c == u'e' || c == u'E' || c == u'd' || c == u'D'; }
constexpr bool IsSkipped(char16_t c) { return c == u' ' || c == u'\t' || c == u'\n'; }

/// Converts digits, at most one "." and an exponent with "e", in the syntax of std::from_chars, to a double.
/// A number too small for a double is 0.
double FromDigits(const std::string& digits, Where at) {
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc::result_out_of_range) return value;

    // Too large or too small: the place of the first significant digit decides.
    const std::size_t mark = std::min(digits.find('e'), digits.size());
    const std::size_t point = std::min(digits.find('.'), mark);
    const std::size_t first = digits.find_first_of("123456789");
    std::int64_t exponent = 0;
    if (mark < digits.size()) {
        const char* const start = digits.data() + mark + (digits.find("e+") == mark ? 2 : 1);
        const auto parsed = std::from_chars(start, digits.data() + digits.size(), exponent);
        if (parsed.ec == std::errc::result_out_of_range) exponent = *start == '-' ? INT32_MIN : INT32_MAX;
    }
    exponent += static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    if (exponent < 0) return 0;
    throw Failure(Err::Overflow, at);
}

/// Collects the digits of a hexadecimal or octal number, one at a time.
class BasedNumber {
public:
    explicit BasedNumber(unsigned base) : base_(base) {}
    bool Take(char16_t c) {
        const char16_t upper = UpperUnit(c);
        unsigned digit = base_;
        if (IsDigit(c))
            digit = static_cast<unsigned>(c - u'0');
        else if (upper >= u'A' && upper <= u'F')
            digit = static_cast<unsigned>(upper - u'A' + 10);
        if (digit >= base_) return false;
        any_ = true;
        if (value_ <= UINT32_MAX) value_ = value_ * base_ + digit;
        ++digits_;
        return true;
    }
    [[nodiscard]] bool Any() const { return any_; }
    [[nodiscard]] double Value(Where at) const {
        const bool hexadecimal = base_ == 16;
        if (hexadecimal ? digits_ > 8 : value_ > UINT32_MAX) throw Failure(Err::Overflow, at);
        const auto bits = static_cast<std::uint32_t>(value_);
        if (hexadecimal ? digits_ <= 4 : bits <= UINT16_MAX)
            return static_cast<std::int16_t>(static_cast<std::uint16_t>(bits));
        return static_cast<std::int32_t>(bits);
    }

private:
    unsigned base_;
    std::uint64_t value_ = 0;
    std::size_t digits_ = 0;
    bool any_ = false;
};

/// The base that the letter after "&" names; 0 for any other letter.
unsigned BaseOf(char16_t letter) {
    switch (UpperUnit(letter)) {
    case u'H': return 16;
    case u'O': return 8;
    default: return 0;
    }
}

/// At most 15 significant digits, with "." as decimal mark and a zero before it.
std::string SignificantDigits(double value) {
    std::array<char, 32> buffer{};
    if (value == std::trunc(value) && std::fabs(value) < 1e15) {
        const auto whole = static_cast<std::int64_t>(value);
        return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), whole).ptr};
    }
    std::string digits(buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                                    std::chars_format::general, 15)
                                          .ptr);
    std::replace(digits.begin(), digits.end(), 'e', 'E');
    return digits;
}

} // namespace

double InRange(double value, Where at) {
    if (!std::isfinite(value)) throw Failure(Err::Overflow, at);
    return value;
}

double Quotient(double dividend, double divisor, Where at) {
    if (divisor == 0) throw Failure(dividend == 0 ? Err::Overflow : Err::DivisionByZero, at);
    return InRange(dividend / divisor, at);
}

// The dividend and the divisor are exact, so the quotient is the nearest double.
std::optional<double> PlainNumber(TextView text) noexcept {
    const bool negative = !text.empty() && text[0] == u'-';
    if (negative) text.remove_prefix(1);
    if (text.empty() || text.size() > kExactDigits + 1) return {};
    std::uint64_t digits = 0;
    std::size_t count = 0;
    std::size_t places = 0;
    bool point = false;
    for (const char16_t c : text) {
        if (IsDigit(c)) {
            digits = digits * 10 + static_cast<unsigned>(c - u'0');
            ++count;
            if (point) ++places;
        } else if (c == u'.' && !point) {
            point = true;
        } else {
            return {};
        }
    }
    if (count > kExactDigits) return {};
    const double value = static_cast<double>(digits) / kTens[places];
    return negative && digits != 0 ? -value : value;
}

double LeadingNumber(TextView text, Where at) {
    if (const auto plain = PlainNumber(text)) return *plain;

    std::string kept;
    std::size_t complete = 0; // length of the valid number in `kept`, without an exponent that has no digits
    bool point = false;
    bool exponent = false;
    bool digits = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (IsSkipped(c)) continue;
        if (kept.empty() && c == u'&') {
            TextView rest = text.substr(i + 1);
            while (!rest.empty() && IsSkipped(rest[0])) rest.remove_prefix(1);
            const unsigned base = rest.empty() ? 0 : BaseOf(rest[0]);
            if (base == 0) return 0;
            BasedNumber number(base);
            for (const char16_t digit : rest.substr(1))
                if (!IsSkipped(digit) && !number.Take(digit)) break;
            return number.Value(at);
        }
        if (IsDigit(c)) {
            digits = true;
            kept += static_cast<char>(c);
            complete = kept.size();
        } else if ((c == u'+' || c == u'-') && (kept.empty() || kept.back() == 'e')) {
            kept += static_cast<char>(c);
        } else if (c == u'.' && !point && !exponent) {
            point = true;
            kept += '.';
            if (digits) complete = kept.size();
        } else if (IsExponentMark(c) && digits && !exponent) {
            exponent = true;
            kept += 'e';
        } else {
            break;
        }
    }
    kept.resize(complete);
    if (!digits) return 0;
    if (kept[0] == '+') kept.erase(0, 1);
    const double value = FromDigits(kept, at);
    return value == 0 ? 0 : value;
}

double RegionalNumber(TextView text, Where at) {
    const Region& region = CurrentRegion();
    const auto refuse = [at]() -> Failure { return Failure(Err::TypeMismatch, at); };
    const auto cutFront = [&text](TextView what) {
        if (what.empty() || !text.starts_with(what)) return false;
        text = TrimmedStart(text.substr(what.size()));
        return true;
    };
    const auto cutBack = [&text](TextView what) {
        if (what.empty() || !text.ends_with(what)) return false;
        text = TrimmedEnd(text.substr(0, text.size() - what.size()));
        return true;
    };

    text = Trimmed(text);
    bool negative = false;
    bool sign = false;
    if (text.starts_with(u"(") && text.ends_with(u")")) {
        text = Trimmed(text.substr(1, text.size() - 2));
        negative = sign = true;
    }
    const auto takeSign = [&](auto cut) {
        if (sign) return;
        negative = cut(u"-");
        sign = negative || cut(u"+");
    };
    takeSign(cutFront);
    const bool currency = cutFront(region.currencySign);
    takeSign(cutFront);
    takeSign(cutBack);
    if (!currency) cutBack(region.currencySign);
    takeSign(cutBack);

    if (text.size() > 1 && text[0] == u'&') {
        BasedNumber number(BaseOf(text[1]));
        const TextView digits = text.substr(2);
        if (!std::all_of(digits.begin(), digits.end(), [&](char16_t c) { return number.Take(c); }) ||
            !number.Any())
            throw refuse();
        const double based = number.Value(at);
        return negative && based != 0 ? -based : based;
    }

    std::string kept;
    bool digits = false;
    bool point = false;
    bool exponent = false;
    for (const char16_t c : text) {
        if (IsDigit(c)) {
            digits = true;
            kept += static_cast<char>(c);
        } else if (c == region.decimalMark && !point && !exponent) {
            point = true;
            kept += '.';
        } else if (c == region.groupMark && c != u'\0' && digits && !point && !exponent) {
            continue;
        } else if (IsExponentMark(c) && digits && !exponent) {
            exponent = true;
            kept += 'e';
        } else if (c == u'-' && !kept.empty() && kept.back() == 'e') {
            kept += '-';
        } else if (!(c == u'+' && !kept.empty() && kept.back() == 'e')) {
            throw refuse();
        }
    }
    if (!digits || !(kept.back() == '.' || IsDigit(static_cast<char16_t>(kept.back())))) throw refuse();
    const double value = FromDigits(kept, at);
    return negative && value != 0 ? -value : value;
}

Text InvariantText(double value) {
    std::string digits = SignificantDigits(value);
    if (digits.starts_with("0."))
        digits.erase(0, 1);
    else if (digits.starts_with("-0."))
        digits.erase(1, 1);
    return {digits.begin(), digits.end()};
}

Text RegionalText(double value) {
    const std::string digits = SignificantDigits(value);
    Text text(digits.begin(), digits.end());
    std::replace(text.begin(), text.end(), u'.', CurrentRegion().decimalMark);
    return text;
}

Text DecimalText(std::int64_t value) {
    std::array<char, 24> buffer{};
    return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr};
}

Text FixedText(double value, std::int32_t places, Where at) {
    constexpr int kDigits = 15;
    if (places < 0) throw Failure(Err::Argument, at);
    if (!std::isfinite(value)) throw Failure(Err::Overflow, at);

    // d.dddddddddddddde+xx: extract the digits and the count of digits before the decimal mark
    std::array<char, 32> buffer{};
    char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                    std::chars_format::scientific, kDigits - 1)
                          .ptr;
    const std::string scientific(buffer.data(), end);
    const std::size_t mark = scientific.find('e');
    int whole = 0;
    const char* const exponent = scientific.data() + mark + (scientific[mark + 1] == '+' ? 2 : 1);
    std::from_chars(exponent, scientific.data() + scientific.size(), whole);
    ++whole;
    std::string digits = scientific.substr(0, 1) + scientific.substr(2, mark - 2);

    // Add leading zeros up to the decimal mark, then round half away from zero.
    if (whole < 1) {
        digits.insert(0, static_cast<std::size_t>(1 - whole), '0');
        whole = 1;
    }
    const std::size_t keep = static_cast<std::size_t>(whole) + static_cast<std::size_t>(places);
    const bool up = keep < digits.size() && digits[keep] >= '5';
    digits.resize(keep, '0');
    if (up) {
        auto digit = digits.rbegin();
        for (; digit != digits.rend() && *digit == '9'; ++digit) *digit = '0';
        if (digit != digits.rend()) {
            ++*digit;
        } else {
            digits.insert(0, 1, '1');
            ++whole;
        }
    }

    Text text(digits.begin(), digits.end());
    text.insert(static_cast<std::size_t>(whole), 1, CurrentRegion().decimalMark);
    if (value < 0 && digits.find_first_not_of('0') != std::string::npos) text.insert(0, 1, u'-');
    return text;
}

std::optional<double> FixedNumber(double value, std::int32_t places) noexcept {
    constexpr std::int32_t kMostPlaces = 6;
    constexpr double kMostUnits = 1e9;
    constexpr double kNearTie = 1e-5; // digits beyond the 15th and the multiplication can shift `units` by
                                      // this much
    if (places < 0 || places > kMostPlaces) return {};
    const double one = kTens[static_cast<std::size_t>(places)];
    const double units = std::fabs(value) * one;
    const double whole = std::floor(units);
    const double part = units - whole;
    if (!(units < kMostUnits) || std::fabs(part - .5) <= kNearTie) return {};
    const double fixed = (part < .5 ? whole : whole + 1) / one;
    return value < 0 && fixed != 0 ? -fixed : fixed;
}

} // namespace htdrdd
