#include "htdrdd91/foundation/clsHTDRDDStrings.h"

#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/basPublicSort.h"

#include <algorithm>

namespace htdrdd {

TextView clsHTDRDDStrings::Cut(TextView item) const noexcept {
    return MaxLength > 0 ? item.substr(0, static_cast<std::size_t>(MaxLength)) : item;
}

/// Adds an item with its own full text as key, or without a key if that key is in use.
void clsHTDRDDStrings::AddByOwnText(TextView item) {
    const TextView cut = Cut(item);
    if (cut.size() == item.size())
        mItems.AddUnderOwnText(Text(item));
    else
        mItems.Add(Text(cut), mItems.Exists(item) ? NewKey() : NewKey(item));
}

bool clsHTDRDDStrings::Add(TextView Item, const NewKey& Key) noexcept {
    bool result = false;
    try {
        mItems.Add(Text(Cut(Item)), Key);
        result = true;
    } catch (...) { ReportFailure(u"clsHTDRDDStrings.Add"); }
    return result;
}

bool clsHTDRDDStrings::Lengthen(std::int32_t lCount) noexcept {
    bool result = false;
    try {
        mItems.Lengthen(lCount);
        result = true;
    }
    // This is meant: a failure is reported under the name of Add, and hosts rely on it.
    catch (...) {
        ReportFailure(u"clsHTDRDDStrings.Add");
    }
    return result;
}

bool clsHTDRDDStrings::AddArray(const Array<Text>& Value) noexcept {
    bool result = false;
    try {
        for (std::int32_t l = Value.LowerBound(); l <= Value.UpperBound(); ++l) AddByOwnText(Value.At(l));
        result = true;
    } catch (...) { ReportFailure(u"clsHTDRDDStrings.AddArray"); }
    return result;
}

bool clsHTDRDDStrings::AddDelimitedString(TextView Items, TextView sDelimiter) noexcept {
    bool result = false;
    try {
        if (Items.empty()) return false;
        Text items; // either argument may be an item of this list
        const Text delimiter(sDelimiter);
        if (Count() > 0) {
            items = Items;
            Items = items;
        }
        mItems.Reserve(NumPieces(Items, delimiter));
        EachPiece(Items, delimiter, [&](TextView piece) { AddByOwnText(piece); });
        result = true;
    } catch (...) { ReportFailure(u"clsHTDRDDStrings.AddDelimitedString"); }
    return result;
}

bool clsHTDRDDStrings::Remove(const Index& Index) noexcept {
    bool result = false;
    try {
        if (Exists(Index)) {
            mItems.Remove(Index);
            result = true;
        }
    } catch (...) { ReportFailure(u"clsHTDRDDStrings.Remove"); }
    return result;
}

bool clsHTDRDDStrings::RemoveAll() noexcept {
    mItems.RemoveAll();
    return true;
}

const Text& clsHTDRDDStrings::Item(const Index& Index) const noexcept {
    static const Text none;
    const Text* const item = mItems.TryItem(Index);
    return item != nullptr ? *item : none;
}

void clsHTDRDDStrings::Item(const Index& Index, TextView sNew) noexcept {
    try {
        if (Exists(Index)) mItems.Replace(Index, Cut(sNew));
    } catch (...) { ReportFailure(u"clsHTDRDDStrings.Item"); }
}

std::int32_t clsHTDRDDStrings::Locate(TextView sItem, Compare eCompareMethod) const noexcept {
    for (std::int32_t l = 1; l <= Count(); ++l)
        if (SameText(Item(l), sItem, eCompareMethod)) return l;
    return 0;
}

Text clsHTDRDDStrings::AsString(TextView sDelimiter) const noexcept {
    Text result;
    try {
        for (const Text& item : mItems) result.append(item).append(sDelimiter);
        if (!result.empty()) result.resize(result.size() - sDelimiter.size());
    } catch (...) { ReportFailure(u"clsHTDRDDStrings.AsString"); }
    return result;
}

Array<Text> clsHTDRDDStrings::AsArray() const noexcept {
    Array<Text> result;
    try {
        if (Count() == 0) return result;
        std::vector<Text> items;
        items.reserve(static_cast<std::size_t>(Count()));
        for (const Text& item : mItems) items.push_back(item);
        result = Array<Text>(std::move(items), 1);
    } catch (...) { ReportFailure(u"clsHTDRDDStrings.AsArray"); }
    return result;
}

Ref<clsHTDRDDStrings> clsHTDRDDStrings::Copy() const noexcept {
    Ref<clsHTDRDDStrings> result;
    try {
        auto copy = Make<clsHTDRDDStrings>();
        copy->MaxLength = MaxLength;
        copy->AddDelimitedString(AsString(u"\t"), u"\t");
        result = std::move(copy);
    } catch (...) { ReportFailure(u"clsHTDRDDStrings.Copy"); }
    return result;
}

bool clsHTDRDDStrings::Sort(bool bDescending) {
    Array<Text> items = AsArray();
    if (!basPublic::QuickSortArray(items, items.LowerBound(), items.UpperBound(), bDescending)) return false;
    RemoveAll();
    return AddArray(items);
}

bool clsHTDRDDStrings::SortAscending() noexcept {
    bool result = false;
    try {
        result = Sort(false);
    } catch (...) { ReportFailure(u"clsHTDRDDStrings.SortAscending"); }
    return result;
}

bool clsHTDRDDStrings::SortDescending() noexcept {
    bool result = false;
    try {
        result = Sort(true);
    } catch (...) { ReportFailure(u"clsHTDRDDStrings.SortDescending"); }
    return result;
}

} // namespace htdrdd
