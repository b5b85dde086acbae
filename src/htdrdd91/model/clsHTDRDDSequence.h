/// The order of the questions in one scrambled version.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/collection.h"
#include "htdrdd91/base/object.h"

#include <cstdint>
#include <optional>

namespace htdrdd {

/// A list of question positions, which checks nothing. Members that aren't noexcept pass failures to the
/// caller.
class clsHTDRDDSequence final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDSequence"; }

    [[nodiscard]] std::int32_t Count() const noexcept { return mItems.Count(); }
    /// Fails as the Add of every list: 457 key in use, 9 or 5 missing entry in Before or After, 5 both given.
    void Add(std::int32_t lItem, const NewKey& Key = {}, const Index& Before = {}, const Index& After = {},
             Where at = Where::current());
    /// Fails with 9 for a missing position.
    void Remove(std::int32_t lIndex, Where at = Where::current());
    void RemoveAll() noexcept { mItems.RemoveAll(); }

    /// The item, or 0 if there is none.
    [[nodiscard]] std::int32_t Item(std::int32_t lIndex) const noexcept;
    /// Replaces an item; does nothing if there is none. A failure is reported.
    void Item(std::int32_t lIndex, std::int32_t lNew) noexcept;
    [[nodiscard]] bool Exists(std::int32_t lIndex) const noexcept { return mItems.Exists(lIndex); }

    /// The items as an array from lLowerBound; without storage if there are no items.
    [[nodiscard]] Array<std::int32_t> AsArray(std::int32_t lLowerBound = 1) const;
    /// The items in decimal with the delimiter between them.
    [[nodiscard]] Text AsString(TextView sDelimiter = u"\t") const;
    /// Fails with 9 for an array without storage.
    void AddArray(const Array<std::int32_t>& Value, Where at = Where::current());
    /// Adds the number at the start of each piece, rounded. Fails, and adds nothing, with 9 for an empty text
    /// and with 6 for a number outside the range of 32-bit integers.
    void AddDelimitedString(TextView Items, TextView sDelimiter = u"\t", Where at = Where::current());

private:
    Collection<std::int32_t> mItems;
};

} // namespace htdrdd
