#include "htdrdd91/component/values/values.h"

#include <array>
#include <cstring>
#include <utility>

namespace htdrdd {
namespace {

/// Whether an array has one dimension, elements of a known kind, and 32-bit positions.
bool IsList(SAFEARRAY& array) {
    VARTYPE kind = VT_EMPTY;
    return SafeArrayGetDim(&array) == 1 && SUCCEEDED(SafeArrayGetVartype(&array, &kind)) &&
           SizeOfKind(kind) > 0 && array.cbElements == SizeOfKind(kind) &&
           array.rgsabound[0].cElements <= std::int64_t{INT32_MAX} - array.rgsabound[0].lLbound &&
           (array.pvData != nullptr || array.rgsabound[0].cElements == 0);
}

} // namespace

const VARIANT& Referent(const VARIANT& value) noexcept {
    return value.vt == (VT_BYREF | VT_VARIANT) && value.pvarVal != nullptr ? *value.pvarVal : value;
}

VARIANT Dereferenced(const VARIANT& value) noexcept {
    VARIANT direct = Referent(value);
    if ((direct.vt & VT_BYREF) == 0) return direct;
    const auto kind = static_cast<VARTYPE>(direct.vt & ~VT_BYREF);
    const std::size_t size = SizeOfKind(kind);
    const void* const variable = direct.byref;
    direct = {};
    if (variable == nullptr || size == 0 || size > sizeof direct.llVal) {
        direct.vt = VT_ERROR; // no value
        direct.scode = E_INVALIDARG;
        return direct;
    }
    direct.vt = kind;
    std::memcpy(&direct.llVal, variable, size);
    return direct;
}

Variant ValueFrom(const VARIANT& value) {
    if ((value.vt & VT_BYREF) != 0) return ValueFrom(Dereferenced(value));
    if ((value.vt & VT_ARRAY) != 0) {
        const bool isList = value.parray == nullptr || IsList(*value.parray);
        return isList ? Variant(ArrayOf<Variant>(value.parray)) : Variant::Other();
    }
    switch (value.vt) {
    case VT_EMPTY: return Variant::Empty();
    case VT_NULL: return Variant::Null();
    case VT_BOOL: return value.boolVal != VARIANT_FALSE;
    case VT_I2: return static_cast<std::int16_t>(value.iVal);
    case VT_I4:
    case VT_INT: return static_cast<std::int32_t>(value.lVal);
    // Other integers become doubles, so members that distinguish kinds don't take them as positions.
    case VT_I1: return static_cast<double>(value.cVal);
    case VT_UI1: return static_cast<double>(value.bVal);
    case VT_UI2: return static_cast<double>(value.uiVal);
    case VT_UI4:
    case VT_UINT: return static_cast<double>(value.ulVal);
    case VT_I8: return static_cast<double>(value.llVal);
    case VT_UI8: return static_cast<double>(value.ullVal);
    case VT_R4: return static_cast<double>(value.fltVal);
    case VT_R8:
    case VT_DATE: return value.dblVal;
    case VT_CY: return static_cast<double>(value.llVal) / 10000;
    case VT_BSTR: return Text(View(value.bstrVal));
    case VT_DISPATCH:
    case VT_UNKNOWN:
        if (const auto object = TryObjectFrom(value.punkVal)) return *object;
        return Variant::Other();
    case VT_ERROR: return value.scode == DISP_E_PARAMNOTFOUND ? Variant() : Variant::Other();
    default: return Variant::Other();
    }
}

void ValueOut(VARIANT& to, const Variant& value) {
    VARIANT made{};
    switch (value.Is()) {
    case Variant::Kind::Missing:
        made.scode = DISP_E_PARAMNOTFOUND;
        made.vt = VT_ERROR;
        break;
    case Variant::Kind::Empty: made.vt = VT_EMPTY; break;
    case Variant::Kind::Null: made.vt = VT_NULL; break;
    case Variant::Kind::Boolean:
        made.boolVal = value.ToBoolean() ? VARIANT_TRUE : VARIANT_FALSE;
        made.vt = VT_BOOL;
        break;
    case Variant::Kind::Integer16:
        made.iVal = value.ToInteger16();
        made.vt = VT_I2;
        break;
    case Variant::Kind::Integer32:
        made.lVal = value.ToInteger32();
        made.vt = VT_I4;
        break;
    case Variant::Kind::Double:
        made.dblVal = value.ToDouble();
        made.vt = VT_R8;
        break;
    case Variant::Kind::String:
        made.bstrVal = NewBstr(*value.AsText());
        made.vt = VT_BSTR;
        break;
    case Variant::Kind::Reference:
        made.pdispVal = ObjectOut(*value.AsObject());
        made.vt = VT_DISPATCH;
        break;
    case Variant::Kind::Other: throw Failure(Err::TypeMismatch);
    case Variant::Kind::Values:
        made.parray = ArrayOut(*value.AsArray(), VT_VARIANT);
        made.vt = VT_ARRAY | VT_VARIANT;
        break;
    }
    to = made;
}

ArrayReader::ArrayReader(SAFEARRAY& array) : array_(array), place_(static_cast<const char*>(array.pvData)) {
    if (SafeArrayGetDim(&array) != 1) throw Failure(Err::Subscript);
    if (!IsList(array)) throw Failure(Err::TypeMismatch);
    SafeArrayGetVartype(&array, &kind_);
}

Variant ArrayReader::Next() {
    VARIANT element{};
    element.vt = kind_;
    std::memcpy(kind_ == VT_VARIANT ? static_cast<void*>(&element) : &element.llVal, place_,
                array_.cbElements);
    place_ += array_.cbElements;
    return ValueFrom(element);
}

ArrayBuilder::ArrayBuilder(VARTYPE kind, std::size_t count, std::int32_t lowerBound) : kind_(kind) {
    SAFEARRAYBOUND bound{static_cast<ULONG>(count), lowerBound};
    array_ = SafeArrayCreate(kind, 1, &bound);
    if (array_ == nullptr) throw Failure(Err::Memory);
    place_ = static_cast<char*>(array_->pvData);
}

void ArrayBuilder::Add(const Variant& value) {
    VARIANT element{}; // moved into its place
    ValueOut(element, value, kind_);
    std::memcpy(place_, kind_ == VT_VARIANT ? static_cast<void*>(&element) : &element.llVal,
                array_->cbElements);
    place_ += array_->cbElements;
}

void ValueOut(VARIANT& to, const Variant& value, VARTYPE kind) {
    switch (kind) {
    case VT_VARIANT: return ValueOut(to, value);
    case VT_I2: return ValueOut(to, value.ToInteger16());
    case VT_I4:
    case VT_INT: return ValueOut(to, value.ToInteger32());
    case VT_R8: return ValueOut(to, value.ToDouble());
    case VT_BOOL: return ValueOut(to, value.ToBoolean());
    case VT_BSTR: return ValueOut(to, value.ToText());
    case VT_DISPATCH:
        if (value.Is() == Variant::Kind::Empty) return ValueOut(to, Ref<Object>());
        if (value.AsObject() == nullptr) throw Failure(Err::TypeMismatch);
        return ValueOut(to, value);
    default: break;
    }
    if ((kind & VT_ARRAY) == 0 || value.AsArray() == nullptr) throw Failure(Err::TypeMismatch);
    VARIANT made{};
    made.parray = ArrayOut(*value.AsArray(), static_cast<VARTYPE>(kind & VT_TYPEMASK));
    made.vt = kind;
    to = made;
}

void AssignTo(const VARIANT& variable, const Variant& value) {
    if (variable.byref == nullptr) return;
    OwnVariant made;
    const auto kind = static_cast<VARTYPE>(variable.vt & ~VT_BYREF);
    ValueOut(made.Get(), value, kind);
    if (kind == VT_VARIANT) return std::swap(*variable.pvarVal, made.Get());
    // Swapped, so that the variable's old value ends with the variant.
    std::array<char, sizeof(VARIANT::llVal)> held{};
    const std::size_t size = SizeOfKind(kind);
    std::memcpy(held.data(), variable.byref, size);
    std::memcpy(variable.byref, &made.Get().llVal, size);
    std::memcpy(&made.Get().llVal, held.data(), size);
}

} // namespace htdrdd
