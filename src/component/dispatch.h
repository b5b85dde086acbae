/// Members by name: from the arguments of a late-bound call to the slot of a member.
#pragma once

#include "component/values.h"

#include <array>
#include <concepts>
#include <cstring>
#include <initializer_list>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>

namespace htdrdd {

/// One parameter of a member, or the value that a property gets.
struct Parameter {
    enum class When { Needed, Optional, Default };
    TextView name;
    VARTYPE type; ///< its kind, also where it goes by reference
    When when = When::Needed;
    std::int32_t number = 0; ///< default of numbers and values,
    TextView text = {};      ///< and of texts
};

struct Member;

/// One argument on its way to a slot.
struct Given {
    const VARIANTARG* value; ///< null where it was left out
    const Parameter& parameter;
    std::size_t position;
    std::size_t& refused; ///< gets the position, where the value doesn't fit the parameter

    /// What an argument that was left out stands for.
    [[nodiscard]] Variant Default() const;
    /// The value in the kind of the parameter.
    void ConvertTo(VARIANT& to) const;
};

/// The arguments of one call, by parameter.
struct Arguments {
    static constexpr std::size_t kMost = 8;
    std::array<const VARIANTARG*, kMost> values{};
    std::size_t refused = kMost;
};

/// One member: a method, or one direction of a property.
struct Member {
    DISPID id;
    TextView name;
    WORD kind;      ///< DISPATCH_METHOD and its like
    VARTYPE result; ///< VT_EMPTY where there is none
    HRESULT (*call)(IDispatch& face, const Member& member, Arguments& arguments, VARIANT& result);
    std::initializer_list<Parameter> parameters;
};

/// The identifier of a member, and those of its parameters, which are their places.
HRESULT FindNames(std::span<const Member> members, LPOLESTR* names, UINT count, DISPID* ids) noexcept;

/// Calls a member of a face.
HRESULT InvokeMember(std::span<const Member> members, IDispatch& face, DISPID id, WORD flags,
                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* told, UINT* refused) noexcept;

/// An argument as a slot takes it: numbers and enumerations.
template <class A>
class Incoming {
public:
    explicit Incoming(const Given& given) {
        VARIANT value{};
        given.ConvertTo(value);
        std::memcpy(&value_, &value.llVal, sizeof value_);
    }
    [[nodiscard]] A Pass() noexcept { return value_; }
    void Return() const noexcept {}

private:
    A value_{};
};

/// Texts: the caller's own where it can't change during the call.
template <>
class Incoming<BSTR> {
public:
    explicit Incoming(const Given& given) {
        if (given.value != nullptr && given.value->vt == VT_BSTR) {
            text_ = given.value->bstrVal;
        } else {
            given.ConvertTo(own_.Get());
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
class Incoming<VARIANT> {
public:
    explicit Incoming(const Given& given) {
        if (given.value != nullptr && (given.value->vt & VT_BYREF) == 0) {
            value_ = *given.value;
        } else {
            given.ConvertTo(own_.Get());
            value_ = own_.Get();
        }
    }
    [[nodiscard]] VARIANT Pass() const noexcept { return value_; }
    void Return() const noexcept {}

private:
    OwnVariant own_;
    VARIANT value_{};
};

/// Objects. Of one that isn't the library's own, members only ask what it is.
template <std::derived_from<IUnknown> I>
class Incoming<I*> {
public:
    explicit Incoming(const Given& given) { given.ConvertTo(own_.Get()); }
    [[nodiscard]] I* Pass() noexcept { return static_cast<I*>(own_.Get().pdispVal); }
    void Return() const noexcept {}

private:
    OwnVariant own_;
};

/// Arguments by reference. The slot gets the caller's variable where that has the kind of the parameter; else
/// one of its own, and what it writes there goes into the caller's variable behind the call, if there is one.
template <class A>
requires(!std::derived_from<A, IUnknown> && !std::same_as<A, OLECHAR>) class Incoming<A*> {
public:
    explicit Incoming(const Given& given) {
        constexpr bool isValue = std::is_same_v<A, VARIANT>;
        const VARTYPE kind = given.parameter.type;
        if (given.value != nullptr && (given.value->vt & VT_BYREF) != 0) {
            const VARIANT& behind = Behind(*given.value);
            variable_ = given.value;
            if (given.value->vt == (VT_BYREF | kind))
                passed_ = static_cast<A*>(given.value->byref);
            else if (!isValue && &behind != given.value && behind.vt == kind)
                passed_ = static_cast<A*>(static_cast<void*>(&given.value->pvarVal->llVal));
            if (passed_ != nullptr) return;
        }
        given.ConvertTo(own_.Get()); // a value of any kind stays what it is
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

/// The way from the arguments of a call to one slot.
template <auto Slot, bool HasResult>
struct Late;

template <class I, class... A, HRESULT (I::*Slot)(A...), bool HasResult>
struct Late<Slot, HasResult> {
    static HRESULT Call(IDispatch& face, const Member& member, Arguments& arguments, VARIANT& result) {
        return To(face, member, arguments, result,
                  std::make_index_sequence<sizeof...(A) - (HasResult ? 1 : 0)>());
    }

private:
    using Types = std::tuple<A...>;

    template <std::size_t... N>
    static HRESULT To(IDispatch& face, const Member& member, [[maybe_unused]] Arguments& arguments,
                      [[maybe_unused]] VARIANT& result, std::index_sequence<N...> /*positions*/) {
        static_assert(sizeof...(N) <= Arguments::kMost);
        std::tuple<Incoming<std::tuple_element_t<N, Types>>...> incoming{
            Given{arguments.values[N], member.parameters.begin()[N], N, arguments.refused}...};
        HRESULT outcome = S_OK;
        auto& target = static_cast<I&>(face);
        if constexpr (HasResult) {
            std::remove_pointer_t<std::tuple_element_t<sizeof...(A) - 1, Types>> value{};
            outcome = (target.*Slot)(std::get<N>(incoming).Pass()..., &value);
            if constexpr (std::is_same_v<decltype(value), VARIANT>) {
                result = value;
            } else {
                std::memcpy(&result.llVal, &value, SizeOfKind(member.result));
                result.vt = member.result;
            }
        } else {
            outcome = (target.*Slot)(std::get<N>(incoming).Pass()...);
        }
        if (SUCCEEDED(outcome)) (std::get<N>(incoming).Return(), ...);
        return outcome;
    }
};

} // namespace htdrdd
