/// Values and arrays on their way between outside hosts and the library.
#pragma once

#include "component/interfaces.h"
#include "component/kinds.h"
#include "component/objects.h"
#include "platform/array.h"
#include "platform/variant.h"

#include <cstdint>
#include <vector>

namespace htdrdd {

/// The value of a variant, which may refer to it; Other for kinds that the library doesn't know. Fails only
/// with 7.
[[nodiscard]] Variant ValueFrom(const VARIANT& value);
/// Puts a value into a variant that holds none. Fails with 13 for Other.
void ValueOut(VARIANT& to, const Variant& value);
/// The same, in a kind that the variant is to have. Fails as the value's conversions do.
void ValueOut(VARIANT& to, const Variant& value, VARTYPE kind);
/// Puts a value into the variable that an argument by reference refers to, in the variable's own kind.
void AssignTo(const VARIANT& variable, const Variant& value);
/// The variant that another one refers to, if it does, or itself.
[[nodiscard]] const VARIANT& Behind(const VARIANT& value) noexcept;
/// What a variant refers to, as if it held that itself; still the other's own.
[[nodiscard]] VARIANT Direct(const VARIANT& value) noexcept;

/// A variant that is cleared at the end.
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

/// The elements of an array of one dimension with its lower bound; a null pointer is an array without
/// storage. Fails with 9 for more dimensions, and with 13 for elements of a kind that the library
/// doesn't know.
[[nodiscard]] Array<Variant> ArrayFrom(SAFEARRAY* array);
/// A new array with elements of a kind, for whoever gets it; null for one without storage.
[[nodiscard]] SAFEARRAY* ArrayOut(const Array<Variant>& array, VARTYPE type);

void Convert(const Variant& value, Text& to);
void Convert(const Variant& value, std::int32_t& to);
void Convert(const Variant& value, bool& to);

/// Arrays of one kind of element. Each element is turned into that kind.
template <class T>
[[nodiscard]] Array<T> ArrayOf(SAFEARRAY* array) {
    const Array<Variant> values = ArrayFrom(array);
    if (!values.HasStorage()) return {};
    std::vector<T> items;
    items.reserve(values.Items().size());
    for (const Variant& value : values.Items()) {
        T item{};
        Convert(value, item);
        items.push_back(std::move(item));
    }
    return Array<T>(std::move(items), values.LowerBound());
}
template <class T>
inline constexpr VARTYPE kElement = VT_VARIANT;
template <>
inline constexpr VARTYPE kElement<Text> = VT_BSTR;
template <>
inline constexpr VARTYPE kElement<std::int32_t> = VT_I4;
template <>
inline constexpr VARTYPE kElement<bool> = VT_BOOL;
template <class T>
[[nodiscard]] SAFEARRAY* ArrayOut(const Array<T>& array) {
    if (!array.HasStorage()) return nullptr;
    std::vector<Variant> values;
    values.reserve(array.Items().size());
    for (const T& item : array.Items()) values.emplace_back(item);
    return ArrayOut(Array<Variant>(std::move(values), array.LowerBound()), kElement<T>);
}

} // namespace htdrdd
