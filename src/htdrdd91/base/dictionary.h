/// Keys and values in order of first insertion.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/base/variant.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace htdrdd {

/// A dictionary with texts or numbers as keys; a text and a number are never the same key.
class Dictionary final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"Dictionary"; }

    [[nodiscard]] std::int32_t Count() const noexcept { return static_cast<std::int32_t>(entries_.size()); }

    /// How text keys compare. Can be set only while the dictionary is empty (else failure 5).
    [[nodiscard]] Compare CompareMode() const noexcept { return mode_; }
    void CompareMode(Compare mode, Where at = Where::current());

    /// Fails with 457 if the key exists, and, as Item does, with 13 for a value that can't be stored.
    void Add(const Variant& key, Variant item, Where at = Where::current());
    /// Reads an item. An unknown key is added at the end with an empty value.
    [[nodiscard]] const Variant& Item(const Variant& key, Where at = Where::current());
    /// Assigns an item. A known key keeps its spelling and its place; an unknown key is added at the end.
    void Item(const Variant& key, Variant item, Where at = Where::current());
    /// Renames a key, which keeps its place. Fails with 32811 if the old key is unknown and with 457 if
    /// another entry has the new key.
    void Key(const Variant& key, const Variant& newKey, Where at = Where::current());
    [[nodiscard]] bool Exists(const Variant& key, Where at = Where::current()) const;
    /// Fails with 32811 for an unknown key.
    void Remove(const Variant& key, Where at = Where::current());
    /// Empties the dictionary; the compare mode stays.
    void RemoveAll() noexcept;

    /// All keys, or all items, in order, as an array from 0.
    [[nodiscard]] Array<Variant> Keys() const;
    [[nodiscard]] Array<Variant> Items() const;

    struct Entry {
        Variant key;
        Variant item;
    };
    /// All entries, in order.
    [[nodiscard]] const std::vector<Entry>& Entries() const noexcept { return entries_; }

private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
    [[nodiscard]] Text Normal(const Variant& key, Where at) const;
    [[nodiscard]] std::size_t Find(const Text& normal) const;
    std::size_t Append(Text normal, const Variant& key, Variant item);

    std::vector<Entry> entries_;
    std::unordered_map<Text, std::size_t> slots_; ///< by normal form of the key
    Compare mode_ = Compare::Exact;
};

} // namespace htdrdd
