/// The ordered list that all list classes build on.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <optional>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

namespace htdrdd {

/// Names an entry of a list: a number is a position from 1, a text is a key. Refers to the text that it was
/// constructed from. `{}` names no entry.
class Index {
public:
    Index() : isGiven_(false) {}
    Index(std::int32_t position) : position_(position) {}
    Index(TextView key) : key_(key) {}
    Index(const Text& key) : key_(TextView(key)) {}
    Index(const char16_t* key) : key_(TextView(key)) {}
    /// An index that matches no entry; Item and Remove fail with `number`.
    static Index Unusable(Err number) {
        Index index;
        index.isGiven_ = true;
        index.unusable_ = number;
        return index;
    }

    /// The position, if the index is a position.
    [[nodiscard]] std::int32_t Position() const noexcept { return position_; }
    /// The key, if the index is a key.
    [[nodiscard]] const std::optional<TextView>& Key() const noexcept { return key_; }
    [[nodiscard]] bool IsGiven() const noexcept { return isGiven_; }
    /// The failure number of a lookup that finds no entry.
    [[nodiscard]] Err WhenMissing() const noexcept {
        return unusable_.value_or(key_ ? Err::Argument : Err::Subscript);
    }

private:
    std::int32_t position_ = 0; ///< 0 if the index is not a position
    std::optional<TextView> key_;
    bool isGiven_ = true;
    std::optional<Err> unusable_;
};

/// The key of a new entry. Refers to the text that it was constructed from. `{}` means no key.
class NewKey {
public:
    NewKey() = default;
    NewKey(TextView key) : key_(key) {}
    NewKey(const Text& key) : key_(TextView(key)) {}
    NewKey(const char16_t* key) : key_(TextView(key)) {}
    /// A key that is not a text: adding an entry under it fails with `number`.
    static NewKey Unusable(Err number) {
        NewKey key;
        key.unusable_ = number;
        return key;
    }

    [[nodiscard]] const std::optional<TextView>& Demand(Where at) const {
        if (unusable_) throw Failure(*unusable_, at);
        return key_;
    }

private:
    std::optional<TextView> key_;
    std::optional<Err> unusable_;
};

namespace detail {

/// The key of an entry: none, the entry's own text (which costs nothing), or a separate text.
class EntryKey {
public:
    EntryKey() = default;
    explicit EntryKey(TextView text) : text_(new Text(text)) {}
    static EntryKey OwnText() {
        EntryKey key;
        key.text_.reset(&kOwnText);
        return key;
    }
    /// The text of the key, or a null pointer if there is no key. `own` is the entry's text.
    [[nodiscard]] const Text* Of(const Text* own) const noexcept {
        return text_.get() == &kOwnText ? own : text_.get();
    }

private:
    static inline const Text kOwnText;
    struct Delete {
        void operator()(const Text* text) const noexcept {
            if (text != &kOwnText) delete text;
        }
    };
    std::unique_ptr<const Text, Delete> text_;
};

} // namespace detail

/// Entries with positions from 1 and optional unique keys. Keys compare without regard to case, and the empty
/// text is a key like any other.
template <class T>
class Collection {
    struct Entry {
        T item;
        detail::EntryKey key;
    };

public:
    [[nodiscard]] std::int32_t Count() const noexcept { return static_cast<std::int32_t>(entries_.size()); }

    /// Adds at the end, or before or after an entry. Fails, and changes nothing, with 457 if the key is in
    /// use, with 5 if both `before` and `after` are given, and as Item does if the entry that they name is
    /// missing.
    void Add(T item, const NewKey& newKey = {}, const Index& before = {}, const Index& after = {},
             Where at = Where::current()) {
        const std::size_t slot = Place(before, after, at);
        const auto& key = newKey.Demand(at);
        if (key && FindKey(*key)) throw Failure(Err::KeyInUse, at);
        Insert(slot, {std::move(item), key ? detail::EntryKey(*key) : detail::EntryKey()}, at);
    }

    /// Adds at the end with the item's own text as key, or without a key if that key is in use.
    void AddUnderOwnText(T item, Where at = Where::current()) requires std::is_same_v<T, Text> {
        auto key = FindKey(item) ? detail::EntryKey() : detail::EntryKey::OwnText();
        Insert(entries_.size(), {std::move(item), std::move(key)}, at);
    }

    /// Fails with 9 for a missing position, with 5 for an unknown key.
    void Remove(const Index& index, Where at = Where::current()) {
        const std::size_t slot = Find(index, at);
        if (const Text* key = KeyOf(entries_[slot]); slotOfKey_ && slot + 1 == entries_.size()) {
            if (key != nullptr) slotOfKey_->erase(Folded(*key));
        } else {
            slotOfKey_.reset();
        }
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(slot));
    }

    void RemoveAll() noexcept {
        slotOfKey_.reset();
        entries_.clear();
    }

    /// Replaces an item. The entry keeps its position and loses its key, if it had one. Fails as Item does.
    template <class U = T>
    void Replace(const Index& index, U&& item, Where at = Where::current()) {
        Entry& entry = entries_[Find(index, at)];
        entry.item = std::forward<U>(item);
        entry.key = {};
        slotOfKey_.reset();
    }

    /// Adds empty items without keys at the end until the collection has `count` items.
    void Lengthen(std::int32_t count) {
        if (count > Count()) entries_.resize(static_cast<std::size_t>(count));
    }

    /// Fails with 9 for a missing position, with 5 for an unknown key.
    [[nodiscard]] const T& Item(const Index& index, Where at = Where::current()) const {
        return entries_[Find(index, at)].item;
    }

    /// The item, or a null pointer if there is none. Never fails.
    [[nodiscard]] const T* TryItem(const Index& index) const noexcept {
        try {
            const auto slot = Slot(index);
            return slot ? &entries_[*slot].item : nullptr;
        } catch (...) { // no memory to look up the key: the item counts as missing
            return nullptr;
        }
    }
    [[nodiscard]] bool Exists(const Index& index) const noexcept { return TryItem(index) != nullptr; }

    /// The items in order, for range-based loops. A change of the collection invalidates the iterators.
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        using pointer = const T*;
        using reference = const T&;
        Iterator() = default;
        const T& operator*() const noexcept { return place_->item; }
        const T* operator->() const noexcept { return &place_->item; }
        Iterator& operator++() noexcept {
            ++place_;
            return *this;
        }
        Iterator operator++(int) noexcept { return Iterator(place_++); }
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        friend class Collection;
        explicit Iterator(typename std::vector<Entry>::const_iterator place) : place_(place) {}
        typename std::vector<Entry>::const_iterator place_;
    };
    [[nodiscard]] Iterator begin() const noexcept { return Iterator(entries_.begin()); }
    [[nodiscard]] Iterator end() const noexcept { return Iterator(entries_.end()); }

    /// Reserves room for `more` additional entries.
    void Reserve(std::size_t more) {
        const std::size_t wanted = entries_.size() + more;
        if (wanted > entries_.capacity()) entries_.reserve(std::max(wanted, 2 * entries_.capacity()));
    }

private:
    /// Shorter lists are searched linearly.
    static constexpr std::size_t kIndexedFrom = 16;

    static const Text* KeyOf(const Entry& entry) noexcept {
        if constexpr (std::is_same_v<T, Text>)
            return entry.key.Of(&entry.item);
        else
            return entry.key.Of(nullptr);
    }

    std::optional<std::size_t> FindKey(TextView key) const {
        if (entries_.size() < kIndexedFrom) {
            for (std::size_t slot = 0; slot < entries_.size(); ++slot)
                if (const Text* own = KeyOf(entries_[slot]); own != nullptr && SameText(*own, key))
                    return slot;
            return {};
        }
        if (!slotOfKey_) {
            auto slots = std::make_unique<SlotOfKey>();
            for (std::size_t slot = 0; slot < entries_.size(); ++slot)
                if (const Text* own = KeyOf(entries_[slot])) slots->emplace(Folded(*own), slot);
            slotOfKey_ = std::move(slots);
        }
        const auto found = slotOfKey_->find(Folded(key));
        return found != slotOfKey_->end() ? std::optional(found->second) : std::nullopt;
    }

    std::optional<std::size_t> Slot(const Index& index) const {
        if (index.Key()) return FindKey(*index.Key());
        const std::int32_t position = index.Position();
        if (position < 1 || position > Count()) return {};
        return static_cast<std::size_t>(position) - 1;
    }

    std::size_t Find(const Index& index, Where at) const {
        if (const auto slot = Slot(index)) return *slot;
        throw Failure(index.WhenMissing(), at);
    }

    std::size_t Place(const Index& before, const Index& after, Where at) const {
        if (before.IsGiven() && after.IsGiven()) throw Failure(Err::Argument, at);
        if (before.IsGiven()) return Find(before, at);
        return after.IsGiven() ? Find(after, at) + 1 : entries_.size();
    }

    void Insert(std::size_t slot, Entry entry, Where at) {
        if (entries_.size() == static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
            throw Failure(Err::Overflow, at);
        if (slot < entries_.size()) {
            entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(slot), std::move(entry));
            slotOfKey_.reset();
            return;
        }
        entries_.push_back(std::move(entry));
        if (const Text* key = KeyOf(entries_.back()); slotOfKey_ && key != nullptr) try {
                slotOfKey_->emplace(Folded(*key), slot);
            } catch (...) { // the entry is in; the next lookup rebuilds the map
                slotOfKey_.reset();
            }
    }

    using SlotOfKey = std::unordered_map<Text, std::size_t>;
    std::vector<Entry> entries_;
    mutable std::unique_ptr<SlotOfKey>
        slotOfKey_; ///< by folded key; built by the first lookup in a long list
};

} // namespace htdrdd
