/// Values of any kind, as late-bound members take and return them.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"

#include <concepts>
#include <cstdint>
#include <memory>
#include <variant>

namespace htdrdd {

/// A value of any kind. "Missing" is an omitted optional argument; "empty" was never set; "other" is a value
/// from outside that can't be stored, only refused.
class Variant {
public:
    enum class Kind {
        Missing,
        Empty,
        Null,
        Boolean,
        Integer16,
        Integer32,
        Double,
        String,
        Reference,
        Values,
        Other
    };

    Variant() = default; ///< missing
    Variant(bool value) : value_(value) {}
    Variant(std::int16_t value) : value_(value) {}
    Variant(std::int32_t value) : value_(value) {}
    Variant(double value) : value_(value) {}
    Variant(Text value) : value_(std::move(value)) {}
    Variant(TextView value) : value_(Text(value)) {}
    Variant(const char16_t* value) : value_(Text(value)) {}
    /// A reference, which may be empty.
    template <std::derived_from<Object> T>
    Variant(const Ref<T>& value) : value_(Ref<Object>(value)) {}
    /// An immutable array, shared by copies of the value.
    Variant(Array<Variant> values) : value_(std::make_shared<const Array<Variant>>(std::move(values))) {}
    static Variant Empty() { return Variant(Storage(std::in_place_index<1>)); }
    static Variant Null() { return Variant(Storage(std::in_place_index<2>)); }
    static Variant Other() { return Variant(Storage(std::in_place_type<OtherValue>)); }

    [[nodiscard]] Kind Is() const noexcept { return static_cast<Kind>(value_.index()); }
    [[nodiscard]] bool IsMissing() const noexcept { return Is() == Kind::Missing; }
    /// The stored text, reference or array, or a null pointer if the value is of another kind.
    [[nodiscard]] const Text* AsText() const noexcept { return std::get_if<Text>(&value_); }
    [[nodiscard]] const Ref<Object>* AsObject() const noexcept { return std::get_if<Ref<Object>>(&value_); }
    [[nodiscard]] const Array<Variant>* AsArray() const noexcept {
        const auto* const values = std::get_if<SharedValues>(&value_);
        return values != nullptr ? values->get() : nullptr;
    }

    /// Conversions. Empty is 0, false and the empty text. Texts are read and numbers are written by the rules
    /// of the region; any number except 0 is true. Null fails with 94, missing with 449, an empty reference
    /// with 91, any other reference with 438. An array, a value of kind Other and a text that is not a number
    /// fail with 13, a number out of range with 6.
    [[nodiscard]] double ToDouble(Where at = Where::current()) const;
    [[nodiscard]] std::int32_t ToInteger32(Where at = Where::current()) const;
    [[nodiscard]] std::int16_t ToInteger16(Where at = Where::current()) const;
    [[nodiscard]] bool ToBoolean(Where at = Where::current()) const;
    [[nodiscard]] Text ToText(Where at = Where::current()) const;

private:
    struct MissingValue {};
    struct EmptyValue {};
    struct NullValue {};
    struct OtherValue {};
    using SharedValues = std::shared_ptr<const Array<Variant>>;
    using Storage = std::variant<MissingValue, EmptyValue, NullValue, bool, std::int16_t, std::int32_t,
                                 double, Text, Ref<Object>, SharedValues, OtherValue>;
    explicit Variant(Storage value) : value_(std::move(value)) {}

    Storage value_;
};

class Index;
class NewKey;

/// A value as the index of a list: a text is a key, a number is a position, rounded; a missing value names no
/// entry. The index refers to the value's text. Any other kind matches no entry (failure 13; null 94; a
/// number out of range 6).
[[nodiscard]] Index IndexOf(const Variant& value) noexcept;
/// A value as the key of a new entry: a text, or no key if the value is missing. Any other kind is unusable
/// (13).
[[nodiscard]] NewKey NewKeyOf(const Variant& value) noexcept;

} // namespace htdrdd
