/// Conversion of arguments and results between the slots of interfaces and the members of classes.
#pragma once

#include "htdrdd91/base/collection.h"
#include "htdrdd91/base/late_bound.h"
#include "htdrdd91/base/text_place.h"
#include "htdrdd91/component/values/objects.h"
#include "htdrdd91/component/values/values.h"

#include <concepts>
#include <cstdint>
#include <tuple>
#include <type_traits>
#include <utility>

namespace htdrdd {

template <class T>
concept Number = std::is_arithmetic_v<T> || std::is_enum_v<T>;

/// The object of class T that an outside object stands for; with LateBound, any object that can be called by
/// name. Fails with 13 for an object of another class.
template <class T>
[[nodiscard]] Ref<T> Referred(IUnknown* outside) {
    if (outside == nullptr) return {};
    Ref<Object> object = ObjectFrom(outside);
    if constexpr (std::is_same_v<T, Object>) {
        return object;
    } else {
        Ref<T> referred(dynamic_cast<T*>(object.Get()));
        if constexpr (std::is_same_v<T, LateBound>)
            if (!referred) referred = Make<ForeignObject>(Com<IDispatch>(&FaceOf(*object)));
        if (!referred) throw Failure(Err::TypeMismatch);
        return referred;
    }
}

template <class... T>
inline constexpr bool kIsKnown = false;

/// Converts an argument from A, its type in a slot, to P, its type in a member. The member gets `Value`;
/// `Return` copies its changes back for an argument by reference.
template <class P, class A>
class Argument {
    static_assert(
        kIsKnown<P, A>,
        "A member of the interface list has a parameter of a kind that no Argument converts: see the types "
        "P and A, and specialize it.");

public:
    explicit Argument(A /*value*/) {}
    [[nodiscard]] P Value() const;
    void Return() const noexcept {}
};

/// The base of arguments that members only read.
class ReadArgument {
public:
    void Return() const noexcept {}
};

/// Numbers are passed unchanged; as a boolean, any number except 0 is true.
template <Number P, Number A>
class Argument<P, A> : public ReadArgument {
public:
    explicit Argument(A value) noexcept : value_(value) {}
    [[nodiscard]] P Value() const noexcept {
        if constexpr (std::is_same_v<P, bool>)
            return value_ != 0;
        else
            return static_cast<P>(value_);
    }

private:
    A value_;
};

/// Variables with the same layout on both sides; null if omitted.
template <Number T, Number A>
requires(sizeof(T) == sizeof(A)) class Argument<T*, A*> : public ReadArgument {
public:
    explicit Argument(A* variable) noexcept : variable_(reinterpret_cast<T*>(variable)) {}
    [[nodiscard]] T* Value() const noexcept { return variable_; }

private:
    T* variable_;
};
template <Number T, Number A>
requires(sizeof(T) == sizeof(A)) class Argument<T&, A*> : public ReadArgument {
public:
    explicit Argument(A* variable) noexcept
        : variable_(variable != nullptr ? reinterpret_cast<T*>(variable) : &none_) {}
    [[nodiscard]] T& Value() const noexcept { return *variable_; }

private:
    T none_{};
    T* variable_;
};

template <>
class Argument<TextView, BSTR> : public ReadArgument {
public:
    explicit Argument(BSTR text) noexcept : text_(View(text)) {}
    [[nodiscard]] TextView Value() const noexcept { return text_; }

private:
    TextView text_;
};
/// A text by reference, copied because the variable may change during the call.
template <>
class Argument<TextView, BSTR*> : public ReadArgument {
public:
    explicit Argument(BSTR* variable) : text_(variable != nullptr ? View(*variable) : TextView()) {}
    [[nodiscard]] TextView Value() const noexcept { return text_; }

private:
    Text text_;
};
/// A text by reference that the member changes, at once.
template <>
class Argument<TextPlace, BSTR*> : public ReadArgument {
public:
    explicit Argument(BSTR* variable) noexcept : variable_(variable) {}
    [[nodiscard]] TextPlace Value() noexcept {
        if (variable_ == nullptr) return none_;
        return {variable_, [](const void* place) { return View(*static_cast<const BSTR*>(place)); },
                [](void* place, TextView text) {
                    BSTR& variable = *static_cast<BSTR*>(place);
                    if (text != View(variable)) SysFreeString(std::exchange(variable, NewBstr(text)));
                }};
    }

private:
    BSTR* variable_;
    Text none_;
};

/// Values of any kind, also for the index or the key of an entry.
template <class P, class A>
requires((std::same_as<A, VARIANT> || std::same_as<A, VARIANT*>)&&(
    std::same_as<std::remove_cvref_t<P>, Variant> || std::same_as<std::remove_cvref_t<P>, Index> ||
    std::same_as<std::remove_cvref_t<P>, NewKey>)) class Argument<P, A> : public ReadArgument {
public:
    explicit Argument(const VARIANT& value) : value_(ValueFrom(value)) {}
    explicit Argument(const VARIANT* variable) {
        if (variable != nullptr) value_ = ValueFrom(*variable);
    }
    [[nodiscard]] decltype(auto) Value() const {
        using Wanted = std::remove_cvref_t<P>;
        if constexpr (std::same_as<Wanted, Index>)
            return IndexOf(value_);
        else if constexpr (std::same_as<Wanted, NewKey>)
            return NewKeyOf(value_);
        else
            return (value_);
    }

private:
    Variant value_;
};

/// Variables of any kind that get a result.
template <class T>
class Argument<T*, VARIANT*> {
public:
    explicit Argument(VARIANT* variable) : variable_(variable) {
        if constexpr (std::same_as<T, Variant>) {
            if (variable != nullptr) value_ = ValueFrom(*variable);
            before_ = value_.Is();
        }
    }
    [[nodiscard]] T* Value() noexcept { return &value_; }
    void Return() {
        if (variable_ == nullptr) return;
        if constexpr (std::same_as<T, Variant>)
            if (value_.Is() == before_) return; // members assign only omitted values
        if ((variable_->vt & VT_BYREF) != 0) return AssignTo(*variable_, Variant(value_));
        OwnVariant made{Variant(value_)};
        std::swap(*variable_, made.Get());
    }

private:
    VARIANT* variable_;
    T value_{};
    Variant::Kind before_ = Variant::Kind::Missing;
};

template <class T, class A>
class Argument<const Ref<T>&, A> : public ReadArgument {
public:
    explicit Argument(IUnknown* object) : value_(Referred<T>(object)) {}
    template <class I>
    explicit Argument(I** variable) : value_(Referred<T>(variable != nullptr ? *variable : nullptr)) {}
    [[nodiscard]] const Ref<T>& Value() const noexcept { return value_; }

private:
    Ref<T> value_;
};
template <class T, class A>
class Argument<Ref<T>, A> : public Argument<const Ref<T>&, A> {
    using Argument<const Ref<T>&, A>::Argument;
};

template <class T>
class Argument<const Array<T>&, SAFEARRAY**> : public ReadArgument {
public:
    explicit Argument(SAFEARRAY* const* variable)
        : value_(ArrayOf<T>(variable != nullptr ? *variable : nullptr)) {}
    [[nodiscard]] const Array<T>& Value() const noexcept { return value_; }

private:
    Array<T> value_;
};
template <class T>
class Argument<Array<T>&, SAFEARRAY**> {
public:
    explicit Argument(SAFEARRAY** variable)
        : variable_(variable), value_(ArrayOf<T>(variable != nullptr ? *variable : nullptr)) {}
    [[nodiscard]] Array<T>& Value() noexcept { return value_; }
    void Return() {
        if (variable_ == nullptr) return;
        SAFEARRAY* made = ArrayOut(value_);
        std::swap(*variable_, made);
        if (SUCCEEDED(SafeArrayDestroy(made))) return;
        std::swap(*variable_, made); // the old array is locked
        SafeArrayDestroy(made);
        throw Failure(Err::PermissionDenied);
    }

private:
    SAFEARRAY** variable_;
    Array<T> value_;
};

template <class R>
inline constexpr bool kIsReference = false;
template <class T>
inline constexpr bool kIsReference<Ref<T>> = true;
template <class T>
inline constexpr bool kIsReference<LazyRef<T>> = true;
template <class R>
inline constexpr bool kIsArray = false;
template <class T>
inline constexpr bool kIsArray<Array<T>> = true;

/// Sets the result of a slot to that of a member.
template <class A, class R>
void SetResult(A& to, const R& result) {
    if constexpr (Number<A> && std::same_as<R, bool>) {
        to = result ? VARIANT_TRUE : VARIANT_FALSE;
    } else if constexpr (Number<A> && Number<R>) {
        to = static_cast<A>(result);
    } else if constexpr (std::same_as<A, BSTR> && std::convertible_to<const R&, TextView>) {
        to = NewBstr(result);
    } else if constexpr (std::same_as<A, VARIANT> && std::convertible_to<const R&, Variant>) {
        ValueOut(to, result);
    } else if constexpr (std::same_as<A, SAFEARRAY*> && kIsArray<R>) {
        to = ArrayOut(result);
    } else if constexpr (std::derived_from<std::remove_pointer_t<A>, IDispatch> && kIsReference<R>) {
        const Ref<typename R::Target>& object = result;
        to = static_cast<A>(ObjectOut(object));
    } else {
        static_assert(
            kIsKnown<A, R>,
            "A member of the interface list has a result of a kind that SetResult doesn't convert: see the "
            "types A and R, and add it.");
    }
}

/// The parameters of a member function; the last may be the caller's line.
template <class F>
struct ParametersOf;
template <class C, class R, class... P>
struct ParametersOf<R (C::*)(P...)> {
    using Types = std::tuple<P...>;
    static constexpr std::size_t kCount = sizeof...(P);
    static constexpr bool kTakesWhere = [] {
        if constexpr (kCount == 0)
            return false;
        else
            return std::is_same_v<std::tuple_element_t<kCount - 1, Types>, Where>;
    }();
};
template <class C, class R, class... P>
struct ParametersOf<R (C::*)(P...) const> : ParametersOf<R (C::*)(P...)> {};
template <class C, class R, class... P>
struct ParametersOf<R (C::*)(P...) noexcept> : ParametersOf<R (C::*)(P...)> {};
template <class C, class R, class... P>
struct ParametersOf<R (C::*)(P...) const noexcept> : ParametersOf<R (C::*)(P...)> {};

/// Getter selects the overload that reads a property with an argument, Setter the one that assigns it.
template <class C, class R, class P>
consteval auto Getter(R (C::*read)(P)) {
    return read;
}
template <class C, class R, class P>
consteval auto Getter(R (C::*read)(P) const) {
    return read;
}
template <class C, class R, class P>
consteval auto Getter(R (C::*read)(P, Where)) {
    return read;
}
template <class C, class R, class P>
consteval auto Getter(R (C::*read)(P, Where) const) {
    return read;
}
template <class C, class P, class V>
consteval auto Setter(void (C::*assign)(P, V)) {
    return assign;
}
template <class C, class P, class V>
consteval auto Setter(void (C::*assign)(P, V, Where)) {
    return assign;
}

/// Calls a member function with a slot's arguments, and then `take` with the result, if there is one.
template <auto Function, class Class, class Take, class... A>
void CallMember(Class& object, const Take& take, A... values) {
    using Parameters = ParametersOf<decltype(Function)>;
    static_assert(Parameters::kCount - (Parameters::kTakesWhere ? 1 : 0) == sizeof...(A),
                  "A member of the interface list has another number of parameters in its class.");
    [&]<std::size_t... N>(std::index_sequence<N...> /*positions*/) {
        std::tuple<Argument<std::tuple_element_t<N, typename Parameters::Types>, A>...> arguments{values...};
        const auto call = [&]() -> decltype(auto) {
            if constexpr (Parameters::kTakesWhere)
                return (object.*Function)(std::get<N>(arguments).Value()..., Where{});
            else
                return (object.*Function)(std::get<N>(arguments).Value()...);
        };
        if constexpr (std::is_void_v<decltype(call())>) {
            call();
            (std::get<N>(arguments).Return(), ...);
        } else {
            auto&& result = call();
            (std::get<N>(arguments).Return(), ...);
            take(result); // last, since a failed call has no result
        }
    }
    (std::index_sequence_for<A...>());
}

} // namespace htdrdd
