/// Numbers that stand for something else.
#pragma once

#include <cstdint>

namespace htdrdd {

enum HTDValue : std::int32_t {
    HTDValueUndefined = -999, ///< a number that has no value
    HTDValueClassAverage = -998,
};

} // namespace htdrdd
