#include "htdrdd91/foundation/basPublicText.h"

#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/platform/process.h"

#include <algorithm>
#include <cmath>

namespace htdrdd::basPublic {

std::int32_t RandomNumber(std::int32_t lLower, std::int32_t lUpper) noexcept {
    std::int32_t result = 0;
    try {
        const double unit = static_cast<double>(Seed() >> 11U) * 0x1p-53; // 0 to just below 1
        result =
            Rounded<std::int32_t>(std::floor((static_cast<double>(lUpper) - lLower + 1) * unit + lLower));
    } catch (...) { ReportFailure(u"basPublic.RandomNumber"); }
    return result;
}

Text RemoveTrailingDelimiter(TextView sText, TextView sDelimiter) noexcept {
    Text result;
    try {
        if (sText.ends_with(sDelimiter)) sText.remove_suffix(sDelimiter.size());
        result = sText;
    } catch (...) { ReportFailure(u"basPublic.RemoveTrailingDelimiter"); }
    return result;
}

std::int32_t NumStringItems(TextView sText, TextView sDelimiter) noexcept {
    if (sDelimiter.empty()) return sText.empty() ? 0 : 1;
    std::int32_t result = 0;
    std::size_t from = 0;
    for (std::size_t at = 0; (at = sText.find(sDelimiter, from)) != TextView::npos; ++result)
        from = at + sDelimiter.size();
    return from < sText.size() ? result + 1 : result;
}

double TextToDouble(TextView sValue) noexcept {
    double result = 0;
    IgnoreFailure([&] {
        if (sValue.ends_with(u'%')) sValue.remove_suffix(1);
        if (const auto plain = PlainNumber(sValue)) {
            result = *plain;
            return;
        }
        const auto mayBeNumber = [](char16_t unit) { return (unit >= u'0' && unit <= u'9') || unit == u'&'; };
        if (std::none_of(sValue.begin(), sValue.end(), mayBeNumber)) return; // a failure costs far more
        try {
            result = sValue.find(u'.') != TextView::npos ? LeadingNumber(sValue) : RegionalNumber(sValue);
        } catch (const Failure&) { result = LeadingNumber(sValue); }
    });
    return result;
}

double ToDouble(const Variant& vValue) noexcept {
    if (const Text* text = vValue.AsText()) return TextToDouble(*text);
    double result = 0;
    IgnoreFailure([&] { result = vValue.ToDouble(); });
    return result;
}

} // namespace htdrdd::basPublic
