#include "htdrdd91/base/variant.h"

#include "htdrdd91/base/collection.h"
#include "htdrdd91/base/number.h"

namespace htdrdd {
namespace {

/// Throws the failure for a value that has no number or text.
[[noreturn]] void Refuse(const Variant& value, Where at) {
    switch (value.Is()) {
    case Variant::Kind::Missing: throw Failure(Err::ArgumentMissing, at);
    case Variant::Kind::Null: throw Failure(Err::InvalidNull, at);
    case Variant::Kind::Reference: throw Failure(*value.AsObject() ? Err::NoSuchMember : Err::NotSet, at);
    default: throw Failure(Err::TypeMismatch, at);
    }
}

} // namespace

double Variant::ToDouble(Where at) const {
    switch (Is()) {
    case Kind::Empty: return 0;
    case Kind::Boolean: return std::get<bool>(value_) ? -1 : 0;
    case Kind::Integer16: return std::get<std::int16_t>(value_);
    case Kind::Integer32: return std::get<std::int32_t>(value_);
    case Kind::Double: return std::get<double>(value_);
    case Kind::String: return RegionalNumber(*AsText(), at);
    default: Refuse(*this, at);
    }
}

std::int32_t Variant::ToInteger32(Where at) const { return Rounded<std::int32_t>(ToDouble(at), at); }

std::int16_t Variant::ToInteger16(Where at) const { return Rounded<std::int16_t>(ToDouble(at), at); }

bool Variant::ToBoolean(Where at) const {
    if (const auto* text = AsText()) {
        if (SameText(*text, u"True")) return true;
        if (SameText(*text, u"False")) return false;
    }
    return ToDouble(at) != 0;
}

Text Variant::ToText(Where at) const {
    switch (Is()) {
    case Kind::Empty: return {};
    case Kind::Boolean: return std::get<bool>(value_) ? u"True" : u"False";
    case Kind::Integer16:
    case Kind::Integer32:
    case Kind::Double: return RegionalText(ToDouble(at));
    case Kind::String: return *AsText();
    default: Refuse(*this, at);
    }
}

Index IndexOf(const Variant& value) noexcept {
    if (value.IsMissing()) return {};
    if (const Text* text = value.AsText()) return *text;
    if (value.AsObject() != nullptr) return Index::Unusable(Err::TypeMismatch);
    try {
        return value.ToInteger32();
    } catch (const Failure& failure) { return Index::Unusable(static_cast<Err>(failure.Number())); }
}

NewKey NewKeyOf(const Variant& value) noexcept {
    if (value.IsMissing()) return {};
    if (const Text* text = value.AsText()) return *text;
    return NewKey::Unusable(Err::TypeMismatch);
}

} // namespace htdrdd
