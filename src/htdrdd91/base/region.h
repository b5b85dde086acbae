/// The region: the local formats of numbers and dates.
#pragma once

#include "htdrdd91/base/text.h"

#include <string>

namespace htdrdd {

struct Region {
    char16_t decimalMark = u'.';
    char16_t groupMark = u','; ///< 0: none
    Text currencySign = u"$";
    std::string dateForm = "%-m/%-d/%Y %-I:%M:%S %p"; ///< date and time, as a strftime format
};

/// The region of this thread, initially that of the machine. Assign to it to choose another. Defined in
/// platform/thread_state.cpp.
[[nodiscard]] Region& CurrentRegion();

} // namespace htdrdd
