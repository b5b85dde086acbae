/// Calls by name: from the arguments of a late-bound call to the slot of a member.
#pragma once

#include "htdrdd91/component/values/values.h"

#include <array>
#include <concepts>
#include <cstring>
#include <initializer_list>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>

namespace htdrdd {

/// A parameter of a member, or the value assigned to a property.
struct Parameter {
    enum class Presence { Required, Optional, Default };
    TextView name;
    VARTYPE type; ///< its kind, without VT_BYREF
    Presence presence = Presence::Required;
    std::int32_t number = 0; ///< default of a number or a value
    TextView text = {};      ///< default of a text
};

/// The arguments of one call, by parameter.
struct CallArguments {
    static constexpr std::size_t kMost = 8;
    std::array<const VARIANTARG*, kMost> values{}; ///< null for an omitted argument
    std::size_t refused = kMost;                   ///< position of the argument that didn't fit its parameter
};

/// One member: a method, or one direction of a property.
struct Member {
    DISPID id;
    TextView name;
    WORD kind;      ///< DISPATCH_METHOD, DISPATCH_PROPERTYGET, ...
    VARTYPE result; ///< VT_EMPTY if there is none
    HRESULT (*thunk)(IDispatch& face, const Member& member, CallArguments& arguments, VARIANT& result);
    std::initializer_list<Parameter> parameters;
};

/// Finds the identifiers of a member and of its parameters; that of a parameter is its position.
HRESULT FindNames(std::span<const Member> members, LPOLESTR* names, UINT count, DISPID* ids) noexcept;

/// Calls a member of a face.
HRESULT InvokeMember(std::span<const Member> members, IDispatch& face, DISPID id, WORD flags,
                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception, UINT* refused) noexcept;

/// An argument of a call by name, to be converted for a slot.
struct CallArgument {
    const VARIANTARG* value; ///< null if it was omitted
    const Parameter& parameter;
    std::size_t position;
    std::size_t& refused; ///< set to the position if the value doesn't fit the parameter

    /// The value of an omitted argument.
    [[nodiscard]] Variant Default() const;
    /// Converts the value to the kind of the parameter.
    void ConvertTo(VARIANT& to) const;
};

/// An argument in the form that a slot takes. Pass returns it; Return copies the slot's changes back for an
/// argument by reference. The primary template is for numbers and enumerations.
template <class A>
class SlotArgument {
    static_assert(
        std::is_arithmetic_v<A> || std::is_enum_v<A>,
        "A call by name has no conversion to this parameter of a slot: specialize SlotArgument for it.");

public:
    explicit SlotArgument(const CallArgument& argument) {
        VARIANT value{};
        argument.ConvertTo(value);
        std::memcpy(&value_, &value.llVal, sizeof value_);
    }
    [[nodiscard]] A Pass() noexcept { return value_; }
    void Return() const noexcept {}

private:
    A value_{};
};

/// Texts: the caller's own, unless it may change during the call.
template <>
class SlotArgument<BSTR> {
public:
    explicit SlotArgument(const CallArgument& argument) {
        if (argument.value != nullptr && argument.value->vt == VT_BSTR) {
            text_ = argument.value->bstrVal;
        } else {
            argument.ConvertTo(own_.Get());
            text_ = own_.Get().bstrVal;
        }
    }
    [[nodiscard]] BSTR Pass() const noexcept { return text_; }
    void Return() const noexcept {}

private:
    OwnVariant own_;
    BSTR text_ = nullptr;
};

/// Values of any kind, likewise.
template <>
class SlotArgument<VARIANT> {
public:
    explicit SlotArgument(const CallArgument& argument) {
        if (argument.value != nullptr && (argument.value->vt & VT_BYREF) == 0) {
            value_ = *argument.value;
        } else {
            argument.ConvertTo(own_.Get());
            value_ = own_.Get();
        }
    }
    [[nodiscard]] VARIANT Pass() const noexcept { return value_; }
    void Return() const noexcept {}

private:
    OwnVariant own_;
    VARIANT value_{};
};

/// Objects. An object that isn't the library's own is only queried for its interfaces.
template <std::derived_from<IUnknown> I>
class SlotArgument<I*> {
public:
    explicit SlotArgument(const CallArgument& argument) { argument.ConvertTo(own_.Get()); }
    [[nodiscard]] I* Pass() noexcept { return static_cast<I*>(own_.Get().pdispVal); }
    void Return() const noexcept {}

private:
    OwnVariant own_;
};

/// Arguments by reference. The slot gets the caller's variable if that has the kind of the parameter;
/// otherwise a variable of this class, which is assigned to the caller's variable, if there is one, after the
/// call.
template <class A>
requires(!std::derived_from<A, IUnknown> && !std::same_as<A, OLECHAR>) class SlotArgument<A*> {
public:
    explicit SlotArgument(const CallArgument& argument) {
        constexpr bool isValue = std::is_same_v<A, VARIANT>;
        const VARTYPE kind = argument.parameter.type;
        if (argument.value != nullptr && (argument.value->vt & VT_BYREF) != 0) {
            const VARIANT& referent = Referent(*argument.value);
            variable_ = argument.value;
            if (argument.value->vt == (VT_BYREF | kind))
                passed_ = static_cast<A*>(argument.value->byref);
            else if (!isValue && &referent != argument.value && referent.vt == kind)
                passed_ = static_cast<A*>(static_cast<void*>(&argument.value->pvarVal->llVal));
            if (passed_ != nullptr) return;
        }
        argument.ConvertTo(own_.Get()); // a value of any kind stays unchanged
        before_ = own_.Get();
        if constexpr (isValue)
            passed_ = &own_.Get();
        else
            passed_ = static_cast<A*>(static_cast<void*>(&own_.Get().llVal));
    }
    [[nodiscard]] A* Pass() const noexcept { return passed_; }
    void Return() {
        const VARIANT& now = own_.Get();
        const bool isOwn = before_.vt != VT_EMPTY || now.vt != VT_EMPTY;
        if (variable_ != nullptr && isOwn && (now.vt != before_.vt || now.llVal != before_.llVal))
            AssignTo(*variable_, ValueFrom(now));
    }

private:
    OwnVariant own_;
    VARIANT before_{};
    const VARIANTARG* variable_ = nullptr;
    A* passed_ = nullptr;
};

/// The thunk of a member calls its slot with the arguments of a call by name.
template <auto Slot, bool HasResult>
struct Thunk;

template <class I, class... A, HRESULT (STDMETHODCALLTYPE I::*Slot)(A...), bool HasResult>
struct Thunk<Slot, HasResult> {
    static HRESULT Call(IDispatch& face, const Member& member, CallArguments& arguments, VARIANT& result) {
        return To(face, member, arguments, result,
                  std::make_index_sequence<sizeof...(A) - (HasResult ? 1 : 0)>());
    }

private:
    using Types = std::tuple<A...>;

    template <std::size_t... N>
    static HRESULT To(IDispatch& face, const Member& member, [[maybe_unused]] CallArguments& arguments,
                      [[maybe_unused]] VARIANT& result, std::index_sequence<N...> /*positions*/) {
        static_assert(sizeof...(N) <= CallArguments::kMost);
        std::tuple<SlotArgument<std::tuple_element_t<N, Types>>...> passed{
            CallArgument{arguments.values[N], member.parameters.begin()[N], N, arguments.refused}...};
        HRESULT outcome = S_OK;
        auto& target = static_cast<I&>(face);
        if constexpr (HasResult) {
            std::remove_pointer_t<std::tuple_element_t<sizeof...(A) - 1, Types>> value{};
            outcome = (target.*Slot)(std::get<N>(passed).Pass()..., &value);
            if constexpr (std::is_same_v<decltype(value), VARIANT>) {
                result = value;
            } else {
                std::memcpy(&result.llVal, &value, SizeOfKind(member.result));
                result.vt = member.result;
            }
        } else {
            outcome = (target.*Slot)(std::get<N>(passed).Pass()...);
        }
        if (SUCCEEDED(outcome)) (std::get<N>(passed).Return(), ...);
        return outcome;
    }
};

} // namespace htdrdd
