#include "htdrdd91/model/clsHTDRDDSequence.h"

#include "htdrdd91/base/number.h"
#include "htdrdd91/foundation/basError.h"

namespace htdrdd {

void clsHTDRDDSequence::Add(std::int32_t lItem, const NewKey& Key, const Index& Before, const Index& After,
                            Where at) {
    mItems.Add(lItem, Key, Before, After, at);
}

void clsHTDRDDSequence::Remove(std::int32_t lIndex, Where at) { mItems.Remove(lIndex, at); }

std::int32_t clsHTDRDDSequence::Item(std::int32_t lIndex) const noexcept {
    const std::int32_t* const item = mItems.TryItem(lIndex);
    return item != nullptr ? *item : 0;
}

void clsHTDRDDSequence::Item(std::int32_t lIndex, std::int32_t lNew) noexcept {
    try {
        if (Exists(lIndex)) mItems.Replace(lIndex, lNew);
    } catch (...) { ReportFailure(u"clsHTDRDDSequence.Item"); }
}

Array<std::int32_t> clsHTDRDDSequence::AsArray(std::int32_t lLowerBound) const {
    if (Count() == 0) return {};
    std::vector<std::int32_t> items;
    items.reserve(static_cast<std::size_t>(Count()));
    for (const std::int32_t item : mItems) items.push_back(item);
    return Array<std::int32_t>(std::move(items), lLowerBound);
}

Text clsHTDRDDSequence::AsString(TextView sDelimiter) const {
    Text text;
    for (const std::int32_t item : mItems) text.append(DecimalText(item)).append(sDelimiter);
    if (!text.empty()) text.resize(text.size() - sDelimiter.size());
    return text;
}

void clsHTDRDDSequence::AddArray(const Array<std::int32_t>& Value, Where at) {
    const std::int32_t last = Value.UpperBound(at);
    mItems.Reserve(Value.Items().size());
    for (std::int32_t l = Value.LowerBound(at); l <= last; ++l) Add(Value.At(l), {}, {}, {}, at);
}

void clsHTDRDDSequence::AddDelimitedString(TextView Items, TextView sDelimiter, Where at) {
    if (Items.empty()) throw Failure(Err::Subscript, at); // there is no array of size 0
    std::vector<std::int32_t> numbers;
    EachPiece(Items, sDelimiter, [&](TextView piece) {
        numbers.push_back(Rounded<std::int32_t>(LeadingNumber(piece, at), at));
    });
    AddArray(Array<std::int32_t>(std::move(numbers)), at);
}

} // namespace htdrdd
