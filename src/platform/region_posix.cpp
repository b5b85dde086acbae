#include "platform/region.h"

#include <langinfo.h>
#include <locale.h>
#include <memory>
#include <string_view>

namespace htdrdd {

Region MachineRegion() {
    Region region;
    const std::unique_ptr<std::remove_pointer_t<locale_t>, decltype(&::freelocale)> locale(
        ::newlocale(LC_ALL_MASK, "", nullptr), &::freelocale);
    if (!locale) return region;
    const auto setting = [&](nl_item item) -> std::string_view {
        return ::nl_langinfo_l(item, locale.get());
    };
    const auto mark = [&](nl_item item) {
        const Text text = FromUtf8(setting(item));
        return text.empty() ? u'\0' : text[0];
    };

    if (const char16_t decimal = mark(RADIXCHAR); decimal != u'\0') region.decimalMark = decimal;
    // The plain "C" settings name neither group mark nor currency nor a form that people use for dates.
    const bool plain = setting(THOUSEP).empty() && setting(CRNCYSTR).size() < 2;
    if (plain) {
        if (region.groupMark == region.decimalMark) region.groupMark = u'.';
        return region;
    }
    region.groupMark = mark(THOUSEP);
    region.currencySign =
        FromUtf8(setting(CRNCYSTR).substr(setting(CRNCYSTR).empty() ? 0 : 1)); // behind its place
    const bool twelveHours = setting(T_FMT).find("%I") != std::string_view::npos ||
                             setting(T_FMT).find("%r") != std::string_view::npos;
    region.dateForm = std::string(setting(D_FMT)) + (twelveHours ? " %I:%M:%S %p" : " %H:%M:%S");
    return region;
}

} // namespace htdrdd
