/// The base of all lists of objects.
#pragma once

#include "htdrdd91/base/collection.h"
#include "htdrdd91/base/object.h"

#include <cstdint>
#include <optional>
#include <utility>

namespace htdrdd {

/// An ordered list of shared objects; adding and reading copy no object. Positions count from 1; an Index is
/// a position or a key. Base is LateBound for lists that the library binds by name.
template <class T, class Base = Object>
class ObjectList : public Base {
public:
    [[nodiscard]] std::int32_t Count() const noexcept { return mItems.Count(); }

    /// Adds at the end, or before or after an entry. Fails, and changes nothing, with 457 if the key is in
    /// use, with 9 or 5 if the entry that Before or After names is missing, and with 5 if both are given.
    void Add(Ref<T> Item, const NewKey& Key = {}, const Index& Before = {}, const Index& After = {},
             Where at = Where::current()) {
        mItems.Add(std::move(Item), Key, Before, After, at);
    }
    /// Fails with 9 for a missing position, with 5 for an unknown key.
    void Remove(const Index& Index, Where at = Where::current()) { mItems.Remove(Index, at); }
    void RemoveAll() noexcept { mItems.RemoveAll(); }

    /// The object, or an empty reference if there is none.
    [[nodiscard]] Ref<T> Item(const Index& Index) const noexcept {
        const Ref<T>* const item = mItems.TryItem(Index);
        return item != nullptr ? *item : Ref<T>();
    }
    /// Whether the entry exists and its reference is set.
    [[nodiscard]] bool Exists(const Index& Index) const noexcept {
        const Ref<T>* const item = mItems.TryItem(Index);
        return item != nullptr && *item;
    }

protected:
    /// Position of the first object after `lAfter` that fits, 0 if none does. An empty reference fails with
    /// 91.
    template <class Fits>
    [[nodiscard]] std::int32_t FirstPosition(Fits fits, std::int32_t lAfter = 0) const {
        for (std::int32_t l = lAfter; l < Count();)
            if (fits(*mItems.Item(++l))) return l;
        return 0;
    }

    Collection<Ref<T>> mItems;
};

} // namespace htdrdd
