/// The members of RecordLibrary. A library's source includes them and instantiates the template.
#pragma once

#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/record_library.h"

#include <algorithm>
#include <utility>

namespace htdrdd {

namespace detail {

inline constexpr TextView kBetweenRecords = u"\v";

/// Class, a point and member, as one literal.
template <Literal Class, Literal Member>
inline constexpr auto kLocation = [] {
    Literal<Class.View().size() + 1 + Member.View().size() + 1> location;
    auto end = std::copy_n(Class.units.begin(), Class.View().size(), location.units.begin());
    *end++ = u'.';
    std::copy_n(Member.units.begin(), Member.View().size(), end);
    return location;
}();

} // namespace detail

template <class Record, Literal Class>
RecordLibrary<Record, Class>::RecordLibrary() noexcept {
    try {
        mRecords = Make<Dictionary>();
        mRecords->CompareMode(Compare::IgnoreCase);
    } catch (...) { ReportFailure(detail::kLocation<Class, u"Class_Initialize">.View()); }
}

template <class Record, Literal Class>
void RecordLibrary<Record, Class>::Add(TextPlace sKey, const Ref<Record>& oRecord) noexcept {
    try {
        const auto self = Held(*this);
        const Text key(Trimmed(sKey.Get()));
        sKey.Set(key);
        if (mRecords->Exists(key)) return;
        Text record = ToText(oRecord);
        mRecords->Add(key, std::move(record));
        Reload.Raise();
    } catch (...) { ReportFailure(detail::kLocation<Class, u"Add">.View()); }
}

template <class Record, Literal Class>
void RecordLibrary<Record, Class>::Remove(TextView sKey) noexcept {
    try {
        const auto self = Held(*this);
        if (!mRecords->Exists(sKey)) return;
        mRecords->Remove(sKey);
        Reload.Raise();
    } catch (...) { ReportFailure(detail::kLocation<Class, u"Remove">.View()); }
}

template <class Record, Literal Class>
std::int32_t RecordLibrary<Record, Class>::Count() const noexcept {
    std::int32_t result = 0;
    try {
        result = mRecords->Count();
    } catch (...) { ReportFailure(detail::kLocation<Class, u"Count">.View()); }
    return result;
}

template <class Record, Literal Class>
void RecordLibrary<Record, Class>::Reset() noexcept {
    try {
        mRecords = Make<Dictionary>();
    } catch (...) { ReportFailure(detail::kLocation<Class, u"Reset">.View()); }
}

template <class Record, Literal Class>
bool RecordLibrary<Record, Class>::Exists(const Variant& vKey) const noexcept {
    bool result = false;
    try {
        result = mRecords->Exists(vKey);
    } catch (...) { ReportFailure(detail::kLocation<Class, u"Exists">.View()); }
    return result;
}

template <class Record, Literal Class>
Ref<Record> RecordLibrary<Record, Class>::Item(const Variant& vKey) const noexcept {
    Ref<Record> result;
    try {
        if (mRecords->Exists(vKey)) result = FromText(mRecords->Item(vKey).ToText());
    } catch (...) { ReportFailure(detail::kLocation<Class, u"Item">.View()); }
    return result;
}

template <class Record, Literal Class>
void RecordLibrary<Record, Class>::Key(const Variant& vOldKey, const Variant& vNewKey) noexcept {
    try {
        if (mRecords->Exists(vOldKey)) mRecords->Key(vOldKey, vNewKey);
    } catch (...) { ReportFailure(detail::kLocation<Class, u"Key">.View()); }
}

template <class Record, Literal Class>
Array<Variant> RecordLibrary<Record, Class>::Keys() const noexcept {
    Array<Variant> result;
    try {
        result = mRecords->Keys();
    } catch (...) { ReportFailure(detail::kLocation<Class, u"Keys">.View()); }
    return result;
}

template <class Record, Literal Class>
Text RecordLibrary<Record, Class>::SaveToString() const noexcept {
    Text result;
    try {
        const auto self = Held(*this);
        const Array<Variant> keys = Keys();
        Text text;
        for (const Variant& key : keys.Items()) text.append(ToText(Item(key))) += detail::kBetweenRecords;
        if (!text.empty()) text.pop_back();
        result = std::move(text);
    } catch (...) { ReportFailure(detail::kLocation<Class, u"SaveToString">.View()); }
    return result;
}

template <class Record, Literal Class>
bool RecordLibrary<Record, Class>::LoadFromString(TextView sRecords) noexcept {
    bool result = false;
    try {
        const auto self = Held(*this);
        const Text records(sRecords); // a handler may save the library into the caller's text
        Reset();
        EachPiece(records, detail::kBetweenRecords, [this](TextView sPiece) { Load(sPiece); });
        result = true;
    } catch (...) { ReportFailure(detail::kLocation<Class, u"LoadFromString">.View()); }
    return result;
}

} // namespace htdrdd
