/// The base of the named libraries of records.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/dictionary.h"
#include "htdrdd91/base/event.h"
#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text_place.h"
#include "htdrdd91/base/variant.h"
#include "htdrdd91/foundation/properties.h"

#include <cstdint>

namespace htdrdd {

/// A library of records under keys, in the order of addition. It holds texts, not objects: Add stores the
/// text form of the record, and Item creates a new object each time. Each member reports its failures. A host
/// keeps the whole library as one text: the texts of the records with vertical tabs between them.
///
/// This is meant: keys compare without regard to case until the first Reset or LoadFromString, and exactly
/// from then on.
template <class Record, Literal Class>
class RecordLibrary : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept final { return Class.View(); }

    /// Raised by Add and Remove after a change: a host's view of the library is out of date.
    Event Reload;

    /// Removes the outer blanks from the caller's key and stores the record under it. If the key is in use,
    /// only the caller's key changes.
    void Add(TextPlace sKey, const Ref<Record>& oRecord) noexcept;
    /// An unknown key changes nothing.
    void Remove(TextView sKey) noexcept;
    [[nodiscard]] std::int32_t Count() const noexcept;
    /// Empties the library without an event.
    void Reset() noexcept;
    [[nodiscard]] bool Exists(const Variant& vKey) const noexcept;
    /// A new object from the text under the key; an empty reference if the key is unknown or the text can't
    /// be read.
    [[nodiscard]] Ref<Record> Item(const Variant& vKey) const noexcept;
    /// Renames a key, which keeps its place. The record keeps the name inside it, which becomes the key again
    /// when the library is saved and loaded. An unknown key changes nothing; a new key that another record
    /// has is failure 457.
    void Key(const Variant& vOldKey, const Variant& vNewKey) noexcept;
    /// All keys, from 0: texts, except keys that were renamed to a number.
    [[nodiscard]] Array<Variant> Keys() const noexcept;
    /// The whole library; empty after a failure. Keys aren't saved, only the names inside the records.
    [[nodiscard]] Text SaveToString() const noexcept;
    /// Replaces the content by a saved library, record by record, and raises Reload for each. The name inside
    /// a record becomes its key; of two records with the same name, outer blanks aside, the first stays.
    /// Returns false after a failure and keeps the records loaded before it.
    bool LoadFromString(TextView sRecords) noexcept;

protected:
    RecordLibrary() noexcept;

    /// The text form of a record.
    [[nodiscard]] virtual Text ToText(const Ref<Record>& oRecord) const = 0;
    /// A new record; an empty reference if the text is not the form of a record.
    [[nodiscard]] virtual Ref<Record> FromText(TextView sRecord) const = 0;
    /// Adds a record of a saved library under the name inside it.
    virtual void Load(TextView sPiece) = 0;

private:
    Ref<Dictionary> mRecords;
};

} // namespace htdrdd
