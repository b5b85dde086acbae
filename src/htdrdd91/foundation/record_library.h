/// What the named libraries of records share.
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

/// A library of records under keys, in the order in which they were added. It holds texts, not objects: Add
/// writes the record down, and Item makes a new object each time. Each member reports its failures. A host
/// keeps the whole library as one text, the texts of the records with vertical tabs between them.
///
/// Keys compare without regard to case until the first Reset or LoadFromString, and exactly from then on:
/// this is meant.
template <class Record, Literal Class>
class RecordLibrary : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept final { return Class.View(); }

    /// Raised by Add and Remove after a change: what a host shows of the library is out of date.
    Event Reload;

    /// Takes the outer blanks off the caller's key, also where it is in use, which changes nothing else, and
    /// stores the record under it.
    void Add(TextPlace sKey, const Ref<Record>& oRecord) noexcept;
    /// An unknown key changes nothing.
    void Remove(TextView sKey) noexcept;
    [[nodiscard]] std::int32_t Count() const noexcept;
    /// Empties the library without an event.
    void Reset() noexcept;
    [[nodiscard]] bool Exists(const Variant& vKey) const noexcept;
    /// A new object with what is stored under the key; an empty reference for an unknown key, and where the
    /// text can't be read.
    [[nodiscard]] Ref<Record> Item(const Variant& vKey) const noexcept;
    /// Renames a key, which keeps its place. The record keeps the name inside it, and that is the key again
    /// once the library has been saved and loaded. An unknown key changes nothing; a new one that another
    /// record has is failure 457.
    void Key(const Variant& vOldKey, const Variant& vNewKey) noexcept;
    /// All keys from 0 on: texts, but for those that were renamed to a number.
    [[nodiscard]] Array<Variant> Keys() const noexcept;
    /// The whole library; empty after a failure. A record's key isn't saved, only the name inside it.
    [[nodiscard]] Text SaveToString() const noexcept;
    /// Replaces what is there by a saved library, piece by piece, with Reload for each record. The name
    /// inside a record is its key; of two with the same one, but for outer blanks, the first stays. False
    /// after a failure, with what was loaded up to then.
    bool LoadFromString(TextView sRecords) noexcept;

protected:
    RecordLibrary() noexcept;

    /// The text that stands for a record.
    [[nodiscard]] virtual Text ToText(const Ref<Record>& oRecord) const = 0;
    /// A new record; an empty reference where the text stands for none.
    [[nodiscard]] virtual Ref<Record> FromText(TextView sRecord) const = 0;
    /// Adds the record of a piece of a saved library under the name inside it.
    virtual void Load(TextView sPiece) = 0;

private:
    Ref<Dictionary> mRecords;
};

} // namespace htdrdd
