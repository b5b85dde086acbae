#include "htdrdd91/foundation/basPublicSort.h"

#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/basPublicText.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace htdrdd::basPublic {
namespace {

struct Numbered {
    double number;
    std::size_t place; ///< index of its text
};

/// Quicksort with the middle element as pivot. This is meant: the pivot and the swap share one variable, so
/// after a swap that pass compares with the element swapped last.
template <class Less>
void SortByNumber(std::vector<Numbered>& items, Less less) {
    struct Range {
        std::int64_t first;
        std::int64_t last;
    };
    std::vector<Range> pending{{0, static_cast<std::int64_t>(items.size()) - 1}};
    const auto at = [&items](std::int64_t place) -> Numbered& {
        return items[static_cast<std::size_t>(place)];
    };
    while (!pending.empty()) {
        const auto [first, last] = pending.back();
        pending.pop_back();
        std::int64_t i = first;
        std::int64_t j = last;
        double pivot = at((first + last) / 2).number;
        while (i <= j) {
            while (less(at(i).number, pivot) && i < last) ++i;
            while (less(pivot, at(j).number) && j > first) --j;
            if (i <= j) {
                pivot = at(j).number;
                std::swap(at(i++), at(j--));
            }
        }
        if (i < last) pending.push_back({i, last});
        if (first < j) pending.push_back({first, j}); // last in, so sorted first
    }
}

} // namespace

bool QuickSortArray(Array<Text>& sArray, std::int32_t lFirst, std::int32_t lLast, bool bDescending) noexcept {
    bool result = false;
    try {
        if (lLast <= lFirst) return false;
        // Equal texts are indistinguishable, so every sort has the same result.
        Text* const first = &sArray.At(lFirst);
        Text* const end = &sArray.At(lLast) + 1;
        if (bDescending)
            std::sort(first, end, std::greater<>());
        else
            std::sort(first, end);
        result = true;
    } catch (...) { ReportFailure(u"basPublic.QuickSortArray"); }
    return result;
}

bool QuickSortNumericStringArray(Array<Text>& sArray, std::int32_t lFirst, std::int32_t lLast,
                                 bool bDescending) noexcept {
    bool result = false;
    try {
        if (lLast <= lFirst) return false;
        Text* const first = &sArray.At(lFirst);
        Text* const end = &sArray.At(lLast) + 1;
        std::vector<Numbered> items;
        items.reserve(static_cast<std::size_t>(end - first));
        for (Text* text = first; text != end; ++text) items.push_back({TextToDouble(*text), items.size()});
        std::vector<Text> sorted(items.size()); // allocated before a text is moved, so that none is lost
        if (bDescending)
            SortByNumber(items, std::greater<>());
        else
            SortByNumber(items, std::less<>());
        std::transform(items.begin(), items.end(), sorted.begin(),
                       [first](const Numbered& item) { return std::move(first[item.place]); });
        std::move(sorted.begin(), sorted.end(), first);
        result = true;
    } catch (...) { ReportFailure(u"basPublic.QuickSortNumericStringArray"); }
    return result;
}

} // namespace htdrdd::basPublic
