/// The ordered list of texts.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/collection.h"
#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"

#include <cstdint>
#include <optional>

namespace htdrdd {

/// An ordered list of texts with an optional length limit. Positions count from 1; an Index is a position or
/// a key. A failure is reported under the member's name, and the result is then false, 0 or empty.
class clsHTDRDDStrings final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDStrings"; }

    /// The items in order, for range-based loops. A change of the list invalidates the iterators.
    [[nodiscard]] auto begin() const noexcept { return mItems.begin(); }
    [[nodiscard]] auto end() const noexcept { return mItems.end(); }
    [[nodiscard]] std::int32_t Count() const noexcept { return mItems.Count(); }

    /// Adds the item, cut to MaxLength, at the end, with the key if there is one. Returns true if the item
    /// was added. A key in use is a failure.
    bool Add(TextView Item, const NewKey& Key = {}) noexcept;

    /// Adds empty items at the end until the list has lCount items. Returns false only after a failure.
    bool Lengthen(std::int32_t lCount) noexcept;

    /// Adds each element with its own full text as key, or without a key if that key is in use. Returns false
    /// after a failure, such as an array without storage; elements added before it stay.
    bool AddArray(const Array<Text>& Value) noexcept;

    /// Adds the pieces of a delimited text as AddArray adds elements. For an empty text it adds nothing and
    /// returns false without a report.
    bool AddDelimitedString(TextView Items, TextView sDelimiter = u"\t") noexcept;

    /// Returns false, without a report, if the item is missing.
    bool Remove(const Index& Index) noexcept;
    bool RemoveAll() noexcept;

    /// The item, or an empty text if there is none. Valid until the list changes.
    [[nodiscard]] const Text& Item(const Index& Index) const noexcept;
    /// Replaces an item by sNew, cut to MaxLength. The item keeps its position and loses its key. Does
    /// nothing if the item is missing.
    void Item(const Index& Index, TextView sNew) noexcept;

    /// Position of the first item that equals a text, 0 if none does. Keys are ignored.
    [[nodiscard]] std::int32_t Locate(TextView sItem,
                                      Compare eCompareMethod = Compare::IgnoreCase) const noexcept;

    /// Whether an item exists at a position or under a key; the texts of the items are ignored.
    [[nodiscard]] bool Exists(const Index& Index) const noexcept { return mItems.Exists(Index); }

    /// The items with the delimiter between them.
    [[nodiscard]] Text AsString(TextView sDelimiter = u"\t") const noexcept;
    /// The items as an array from 1; without storage if there are no items.
    [[nodiscard]] Array<Text> AsArray() const noexcept;

    /// A new list with the same MaxLength, filled from the tab-delimited text of this list: an item that
    /// contains a tab becomes several, the keys are new, and a single empty item is lost. Empty after a
    /// failure.
    [[nodiscard]] Ref<clsHTDRDDStrings> Copy() const noexcept;

    /// Number of units to which a new item is cut; 0 or less: no limit. A change doesn't affect the present
    /// items.
    std::int32_t MaxLength = 0;

    /// Sort by exact character codes. The keys are new. Returns false for a single item, which stays
    /// unchanged; an empty list is a failure.
    bool SortAscending() noexcept;
    bool SortDescending() noexcept;

private:
    [[nodiscard]] TextView Cut(TextView item) const noexcept;
    void AddByOwnText(TextView item);
    bool Sort(bool bDescending);

    Collection<Text> mItems;
};

} // namespace htdrdd
