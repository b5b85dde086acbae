/// The two sorts of text arrays.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/text.h"

#include <cstdint>

namespace htdrdd::basPublic {

/// Sorts the elements from lFirst to lLast by exact character codes. True when there were at least two; with
/// fewer nothing is done. A bound outside the array is a failure: reported, false.
bool QuickSortArray(Array<Text>& sArray, std::int32_t lFirst, std::int32_t lLast, bool bDescending) noexcept;

/// The same by the numbers that ToDouble makes of the elements. The result needn't be fully sorted: 3, 4, 2,
/// 1 ascending comes out as 1, 3, 2, 4.
bool QuickSortNumericStringArray(Array<Text>& sArray, std::int32_t lFirst, std::int32_t lLast,
                                 bool bDescending) noexcept;

} // namespace htdrdd::basPublic
