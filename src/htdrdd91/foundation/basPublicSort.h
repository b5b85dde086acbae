/// The two sorts of text arrays.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/text.h"

#include <cstdint>

namespace htdrdd::basPublic {

/// Sorts the elements from lFirst to lLast by exact character codes. Returns true if there are at least two;
/// otherwise does nothing. A bound outside the array is a failure: reported, and the result is false.
bool QuickSortArray(Array<Text>& sArray, std::int32_t lFirst, std::int32_t lLast, bool bDescending) noexcept;

/// The same, by the numbers that ToDouble returns for the elements. The result may be unsorted: 3, 4, 2, 1
/// ascending becomes 1, 3, 2, 4.
bool QuickSortNumericStringArray(Array<Text>& sArray, std::int32_t lFirst, std::int32_t lLast,
                                 bool bDescending) noexcept;

} // namespace htdrdd::basPublic
