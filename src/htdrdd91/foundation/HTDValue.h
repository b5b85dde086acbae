/// Numbers with a special meaning.
#pragma once

#include <cstdint>

namespace htdrdd {

enum HTDValue : std::int32_t {
    HTDValueUndefined = -999, ///< no value
    HTDValueClassAverage = -998,
};

} // namespace htdrdd
