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

    /// The enumerator: the items in order. A change of the list ends it.
    [[nodiscard]] auto begin() const noexcept { return mItems.begin(); }
    [[nodiscard]] auto end() const noexcept { return mItems.end(); }
    [[nodiscard]] std::int32_t Count() const noexcept { return mItems.Count(); }

    /// Cuts the item to MaxLength and adds it at the end, under the key if there is one. True when added. A
    /// key that is in use is a failure.
    bool Add(TextView Item, const NewKey& Key = {}) noexcept;

    /// Adds empty items at the end until there are that many. False only after a failure.
    bool Lengthen(std::int32_t lCount) noexcept;

    /// Adds each element under its own full text as its key, or without a key where that one is in use. False
    /// if any element couldn't be added; the others are. An array without storage is a failure.
    bool AddArray(const Array<Text>& Value) noexcept;

    /// Adds the pieces of a delimited text by the rule of AddArray. An empty text adds nothing and gives
    /// false, which isn't reported.
    bool AddDelimitedString(TextView Items, TextView sDelimiter = u"\t") noexcept;

    /// False, with nothing reported, where there is no such item.
    bool Remove(const Index& Index) noexcept;
    bool RemoveAll() noexcept;

    /// The item, or an empty text where there is none. It lasts until the list changes.
    [[nodiscard]] const Text& Item(const Index& Index) const noexcept;
    /// Replaces an item, cut to MaxLength. It stays in its place and loses its key. Where there is no such
    /// item, nothing happens.
    void Item(const Index& Index, TextView sNew) noexcept;

    /// Position of the first item that equals a text, 0 if none does. Keys play no part.
    [[nodiscard]] std::int32_t Locate(TextView sItem,
                                      Compare eCompareMethod = Compare::IgnoreCase) const noexcept;

    /// Whether there is an item at a position or under a key; item texts aren't looked at.
    [[nodiscard]] bool Exists(const Index& Index) const noexcept { return mItems.Exists(Index); }

    /// The items with the delimiter between them.
    [[nodiscard]] Text AsString(TextView sDelimiter = u"\t") const noexcept;
    /// The items from 1; with no items an array without storage.
    [[nodiscard]] Array<Text> AsArray() const noexcept;

    /// A new list with this one's MaxLength, filled from the tab-delimited text of this one: an item that
    /// holds a tab becomes several, keys are made anew, and a single empty item is lost. Empty after a
    /// failure.
    [[nodiscard]] Ref<clsHTDRDDStrings> Copy() const noexcept;

    /// Number of units at which an item is cut on entry; 0 or less: no limit. A change doesn't touch the
    /// items that are there.
    std::int32_t MaxLength = 0;

    /// Sort by exact character codes. Keys are made anew. False for a single item, which stays as it is; an
    /// empty list is a failure.
    bool SortAscending() noexcept;
    bool SortDescending() noexcept;

private:
    [[nodiscard]] TextView Cut(TextView item) const noexcept;
    void AddByOwnText(TextView item);
    bool Sort(bool bDescending);

    Collection<Text> mItems;
};

} // namespace htdrdd
