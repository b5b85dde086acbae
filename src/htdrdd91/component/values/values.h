/// Conversion of values and arrays between outside hosts and the library.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/variant.h"
#include "htdrdd91/component/layout/automation.h"
#include "htdrdd91/component/layout/kinds.h"
#include "htdrdd91/component/values/objects.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace htdrdd {

/// The value that a variant holds or refers to; Other for kinds that the library doesn't know. Fails only
/// with 7.
[[nodiscard]] Variant ValueFrom(const VARIANT& value);
/// Puts a value into an empty variant. Fails with 13 for Other.
void ValueOut(VARIANT& to, const Variant& value);
/// The same, converted to a kind. Fails as the value's conversions do.
void ValueOut(VARIANT& to, const Variant& value, VARTYPE kind);
/// Assigns a value to the variable of an argument by reference, converted to the variable's kind.
void AssignTo(const VARIANT& variable, const Variant& value);
/// The variant that another variant refers to, or that variant itself if it refers to none.
[[nodiscard]] const VARIANT& Referent(const VARIANT& value) noexcept;
/// The value that a variant holds or refers to, as a variant that holds the value and owns nothing.
[[nodiscard]] VARIANT Dereferenced(const VARIANT& value) noexcept;

/// A variant that the destructor clears.
class OwnVariant {
public:
    OwnVariant() noexcept { VariantInit(&value_); }
    explicit OwnVariant(const Variant& value) : OwnVariant() { ValueOut(value_, value); }
    OwnVariant(const OwnVariant&) = delete;
    OwnVariant& operator=(const OwnVariant&) = delete;
    ~OwnVariant() { VariantClear(&value_); }
    [[nodiscard]] VARIANT& Get() noexcept { return value_; }

private:
    VARIANT value_{};
};

/// Reads the elements of a one-dimensional array, in order.
class ArrayReader {
public:
    /// Fails with 9 for more dimensions, and with 13 for elements of a kind that the library doesn't know.
    explicit ArrayReader(SAFEARRAY& array);
    [[nodiscard]] std::size_t Count() const noexcept { return array_.rgsabound[0].cElements; }
    [[nodiscard]] std::int32_t LowerBound() const noexcept {
        return static_cast<std::int32_t>(array_.rgsabound[0].lLbound);
    }
    [[nodiscard]] Variant Next();

private:
    SAFEARRAY& array_;
    VARTYPE kind_ = VT_EMPTY;
    const char* place_;
};

/// Builds a one-dimensional array, which the destructor destroys unless it was detached.
class ArrayBuilder {
public:
    ArrayBuilder(VARTYPE kind, std::size_t count, std::int32_t lowerBound);
    ArrayBuilder(const ArrayBuilder&) = delete;
    ArrayBuilder& operator=(const ArrayBuilder&) = delete;
    ~ArrayBuilder() { SafeArrayDestroy(array_); }
    /// Fills the next element, converted to the kind of the array.
    void Add(const Variant& value);
    [[nodiscard]] SAFEARRAY* Detach() noexcept { return std::exchange(array_, nullptr); }

private:
    SAFEARRAY* array_;
    VARTYPE kind_;
    char* place_ = nullptr;
};

inline void Convert(const Variant& value, Variant& to) { to = value; }
inline void Convert(const Variant& value, Text& to) { to = value.ToText(); }
inline void Convert(const Variant& value, std::int32_t& to) { to = value.ToInteger32(); }
inline void Convert(const Variant& value, bool& to) { to = value.ToBoolean(); }

/// The elements of an array with its lower bound, each converted to a T; a null pointer becomes an array
/// without storage. Fails as ArrayReader does.
template <class T>
[[nodiscard]] Array<T> ArrayOf(SAFEARRAY* array) {
    if (array == nullptr) return {};
    ArrayReader list(*array);
    std::vector<T> items;
    items.reserve(list.Count());
    for (std::size_t left = list.Count(); left > 0; --left) {
        T item{};
        Convert(list.Next(), item);
        items.push_back(std::move(item));
    }
    return Array<T>(std::move(items), list.LowerBound());
}

template <class T>
inline constexpr VARTYPE kElement = VT_VARIANT;
template <>
inline constexpr VARTYPE kElement<Text> = VT_BSTR;
template <>
inline constexpr VARTYPE kElement<std::int32_t> = VT_I4;
template <>
inline constexpr VARTYPE kElement<bool> = VT_BOOL;
/// A new array with elements of a kind, owned by the caller; null for an array without storage.
template <class T>
[[nodiscard]] SAFEARRAY* ArrayOut(const Array<T>& array, VARTYPE kind = kElement<T>) {
    if (!array.HasStorage()) return nullptr;
    ArrayBuilder made(kind, array.Items().size(), array.LowerBound());
    for (const T& item : array.Items()) made.Add(item);
    return made.Detach();
}

} // namespace htdrdd
