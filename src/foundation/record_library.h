/// What the named libraries of records share.
#pragma once

#include "foundation/basError.h"
#include "foundation/properties.h"
#include "platform/array.h"
#include "platform/dictionary.h"
#include "platform/event.h"
#include "platform/object.h"
#include "platform/text_place.h"
#include "platform/variant.h"

#include <cstdint>
#include <utility>

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
    void Add(TextPlace sKey, const Ref<Record>& oRecord) noexcept {
        try {
            const Ref<RecordLibrary> self(this); // a handler may release it
            const Text key(Trimmed(sKey.Get()));
            sKey.Set(key);
            if (mRecords->Exists(key)) return;
            Text record = ToText(oRecord);
            mRecords->Add(key, std::move(record));
            Reload.Raise();
        } catch (...) { ReportFailure(kLocation<u"Add">); }
    }
    /// An unknown key changes nothing.
    void Remove(TextView sKey) noexcept {
        try {
            const Ref<RecordLibrary> self(this);
            if (!mRecords->Exists(sKey)) return;
            mRecords->Remove(sKey);
            Reload.Raise();
        } catch (...) { ReportFailure(kLocation<u"Remove">); }
    }
    [[nodiscard]] std::int32_t Count() const noexcept {
        std::int32_t result = 0;
        try {
            result = mRecords->Count();
        } catch (...) { ReportFailure(kLocation<u"Count">); }
        return result;
    }
    /// Empties the library without an event.
    void Reset() noexcept {
        try {
            mRecords = Make<Dictionary>();
        } catch (...) { ReportFailure(kLocation<u"Reset">); }
    }
    [[nodiscard]] bool Exists(const Variant& vKey) const noexcept {
        bool result = false;
        try {
            result = mRecords->Exists(vKey);
        } catch (...) { ReportFailure(kLocation<u"Exists">); }
        return result;
    }
    /// A new object with what is stored under the key; an empty reference for an unknown key, and where the
    /// text can't be read.
    [[nodiscard]] Ref<Record> Item(const Variant& vKey) const noexcept {
        Ref<Record> result;
        try {
            if (mRecords->Exists(vKey)) result = FromText(mRecords->Item(vKey).ToText());
        } catch (...) { ReportFailure(kLocation<u"Item">); }
        return result;
    }
    /// Renames a key, which keeps its place. The record keeps the name inside it, and that is the key again
    /// once the library has been saved and loaded. An unknown key changes nothing; a new one that another
    /// record has is failure 457.
    void Key(const Variant& vOldKey, const Variant& vNewKey) noexcept {
        try {
            if (mRecords->Exists(vOldKey)) mRecords->Key(vOldKey, vNewKey);
        } catch (...) { ReportFailure(kLocation<u"Key">); }
    }
    /// All keys from 0 on: texts, but for those that were renamed to a number.
    [[nodiscard]] Array<Variant> Keys() const noexcept {
        Array<Variant> result;
        try {
            result = mRecords->Keys();
        } catch (...) { ReportFailure(kLocation<u"Keys">); }
        return result;
    }
    /// The whole library; empty after a failure. A record's key isn't saved, only the name inside it.
    [[nodiscard]] Text SaveToString() const noexcept {
        Text result;
        try {
            const Ref<const RecordLibrary> self(this); // a report may make the host release it
            const Array<Variant> keys = Keys();
            Text text;
            for (const Variant& key : keys.Items()) text.append(ToText(Item(key))) += kBetweenRecords;
            if (!text.empty()) text.pop_back();
            result = std::move(text);
        } catch (...) { ReportFailure(kLocation<u"SaveToString">); }
        return result;
    }
    /// Replaces what is there by a saved library, piece by piece, with Reload for each record. The name
    /// inside a record is its key; of two with the same one, but for outer blanks, the first stays. False
    /// after a failure, with what was loaded up to then.
    bool LoadFromString(TextView sRecords) noexcept {
        bool result = false;
        try {
            const Ref<RecordLibrary> self(this);
            const Text records(sRecords); // a handler may save the library over the caller's text
            Reset();
            EachPiece(records, kBetweenRecords, [this](TextView sPiece) { Load(sPiece); });
            result = true;
        } catch (...) { ReportFailure(kLocation<u"LoadFromString">); }
        return result;
    }

protected:
    RecordLibrary() noexcept {
        try {
            mRecords = Make<Dictionary>();
            mRecords->CompareMode(Compare::IgnoreCase);
        } catch (...) { ReportFailure(kLocation<u"Class_Initialize">); }
    }

    /// The location of a member.
    template <Literal Member>
    static constexpr TextView kLocation = kJoined<u"HTDRdd91 - ", Class, u".", Member>.View();

    /// The text that stands for a record.
    [[nodiscard]] virtual Text ToText(const Ref<Record>& oRecord) const = 0;
    /// A new record; an empty reference where the text stands for none.
    [[nodiscard]] virtual Ref<Record> FromText(TextView sRecord) const = 0;
    /// Adds the record of a piece of a saved library under the name inside it.
    virtual void Load(TextView sPiece) = 0;

private:
    static constexpr TextView kBetweenRecords = u"\v";

    Ref<Dictionary> mRecords;
};

} // namespace htdrdd
