#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/machine_region.h"

#include <algorithm>
#include <array>
#include <langinfo.h>
#include <locale.h>
#include <memory>

namespace htdrdd {
namespace {

constexpr std::array<TextView, 4> kTwelveHourForms{u"%I", u"%l", u"%r", u"%p"};

} // namespace

Region MachineRegion() {
    Region region;
    const std::unique_ptr<std::remove_pointer_t<locale_t>, decltype(&::freelocale)> locale(
        ::newlocale(LC_ALL_MASK, "", nullptr), &::freelocale);
    if (!locale) return region;
    const auto setting = [&](nl_item item) {
        return FromCharacterSet(::nl_langinfo_l(item, locale.get()), ::nl_langinfo_l(CODESET, locale.get()));
    };
    const auto mark = [&](nl_item item) {
        const Text text = setting(item);
        return text.empty() ? u'\0' : text[0];
    };

    if (const char16_t decimal = mark(RADIXCHAR); decimal != u'\0') region.decimalMark = decimal;
    // The "C" locale has no group mark, no currency sign and no date format for people.
    const Text currency = setting(CRNCYSTR);
    if (mark(THOUSEP) == u'\0' && currency.size() < 2) return region;
    region.groupMark = mark(THOUSEP);
    region.currencySign =
        currency.empty() ? Text() : currency.substr(1); // after the character that tells its place
    const Text time = setting(T_FMT);
    const bool twelveHours = std::any_of(kTwelveHourForms.begin(), kTwelveHourForms.end(),
                                         [&](TextView form) { return time.find(form) != Text::npos; });
    region.dateForm = ToUtf8(setting(D_FMT)) + (twelveHours ? " %-I:%M:%S %p" : " %H:%M:%S");
    return region;
}

} // namespace htdrdd
