/// Arguments and results between the slots of interfaces and the members of classes.
#pragma once

#include "component/foreign_object.h"
#include "component/values.h"
#include "platform/collection.h"
#include "platform/text_place.h"

#include <concepts>
#include <cstdint>
#include <tuple>
#include <type_traits>
#include <utility>

namespace htdrdd {

template <class T>
concept Number = std::is_arithmetic_v<T> || std::is_enum_v<T>;

/// The object of a class behind an outside one, or with LateBound any that can be called by name. Fails with
/// 13 for an object of another class.
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

/// An argument that a member takes as a P, and a slot as an A. `Value` is what the member gets; `Return`
/// brings back what it wrote. Numbers go through as they are, a boolean as any number but 0.
template <class P, class A>
class Argument {
public:
    explicit Argument(A value) noexcept requires Number<P> && Number<A> : value_(Of(value)) {}
    [[nodiscard]] P Value() const noexcept { return value_; }
    void Return() const noexcept {}

private:
    static P Of(A value) noexcept {
        if constexpr (std::is_same_v<P, bool>)
            return value != 0;
        else
            return static_cast<P>(value);
    }
    P value_;
};

/// Variables that both sides see alike; null where they were left out.
template <Number T, Number A>
requires(sizeof(T) == sizeof(A)) class Argument<T*, A*> {
public:
    explicit Argument(A* variable) noexcept : variable_(reinterpret_cast<T*>(variable)) {}
    [[nodiscard]] T* Value() const noexcept { return variable_; }
    void Return() const noexcept {}

private:
    T* variable_;
};
template <Number T, Number A>
requires(sizeof(T) == sizeof(A)) class Argument<T&, A*> {
public:
    explicit Argument(A* variable) noexcept
        : variable_(variable != nullptr ? reinterpret_cast<T*>(variable) : &none_) {}
    [[nodiscard]] T& Value() const noexcept { return *variable_; }
    void Return() const noexcept {}

private:
    T none_{};
    T* variable_;
};

template <>
class Argument<TextView, BSTR> {
public:
    explicit Argument(BSTR text) noexcept : text_(View(text)) {}
    [[nodiscard]] TextView Value() const noexcept { return text_; }
    void Return() const noexcept {}

private:
    TextView text_;
};
/// A text by reference, which may change during the call.
template <>
class Argument<TextView, BSTR*> {
public:
    explicit Argument(BSTR* variable) : text_(variable != nullptr ? View(*variable) : TextView()) {}
    [[nodiscard]] TextView Value() const noexcept { return text_; }
    void Return() const noexcept {}

private:
    Text text_;
};
/// One that the member changes, at once.
template <>
class Argument<TextPlace, BSTR*> {
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
    void Return() const noexcept {}

private:
    BSTR* variable_;
    Text none_;
};

/// Values of any kind, also as what names an entry of a list.
template <class P>
class ArgumentOfAnyKind {
public:
    explicit ArgumentOfAnyKind(const VARIANT& value) : value_(ValueFrom(value)) {}
    explicit ArgumentOfAnyKind(const VARIANT* variable) {
        if (variable != nullptr) value_ = ValueFrom(*variable);
    }
    [[nodiscard]] P Value() const {
        if constexpr (std::same_as<P, Index>)
            return IndexOf(value_);
        else if constexpr (std::same_as<P, NewKey>)
            return NewKeyOf(value_);
        else
            return value_;
    }
    void Return() const noexcept {}

private:
    Variant value_;
};
template <class A>
class Argument<const Variant&, A> : public ArgumentOfAnyKind<const Variant&> {
    using ArgumentOfAnyKind<const Variant&>::ArgumentOfAnyKind;
};
template <>
class Argument<const Index&, VARIANT> : public ArgumentOfAnyKind<Index> {
    using ArgumentOfAnyKind<Index>::ArgumentOfAnyKind;
};
template <>
class Argument<const NewKey&, VARIANT> : public ArgumentOfAnyKind<NewKey> {
    using ArgumentOfAnyKind<NewKey>::ArgumentOfAnyKind;
};
template <>
class Argument<Variant, VARIANT> : public ArgumentOfAnyKind<Variant> {
    using ArgumentOfAnyKind<Variant>::ArgumentOfAnyKind;
};

/// Results in variables of any kind.
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
            if (value_.Is() == before_) return; // members only fill in what was left out
        if ((variable_->vt & VT_BYREF) != 0) return AssignTo(*variable_, Variant(value_));
        OwnVariant made{Variant(value_)};
        std::swap(*variable_, made.Get());
    }

private:
    VARIANT* variable_;
    T value_{};
    Variant::Kind before_ = Variant::Kind::Missing;
};

/// Objects.
template <class T, class A>
class Argument<const Ref<T>&, A> {
public:
    explicit Argument(IUnknown* object) : value_(Referred<T>(object)) {}
    template <class I>
    explicit Argument(I** variable) : value_(Referred<T>(variable != nullptr ? *variable : nullptr)) {}
    [[nodiscard]] const Ref<T>& Value() const noexcept { return value_; }
    void Return() const noexcept {}

private:
    Ref<T> value_;
};
template <class T, class A>
class Argument<Ref<T>, A> : public Argument<const Ref<T>&, A> {
    using Argument<const Ref<T>&, A>::Argument;
};

template <class T>
class Argument<const Array<T>&, SAFEARRAY**> {
public:
    explicit Argument(SAFEARRAY* const* variable)
        : value_(ArrayOf<T>(variable != nullptr ? *variable : nullptr)) {}
    [[nodiscard]] const Array<T>& Value() const noexcept { return value_; }
    void Return() const noexcept {}

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
        std::swap(*variable_, made); // somebody works on the old one
        SafeArrayDestroy(made);
        throw Failure(Err::PermissionDenied);
    }

private:
    SAFEARRAY** variable_;
    Array<T> value_;
};

/// Puts a member's result where a slot gives it.
template <Number A, Number R>
void Give(A& to, const R& result) noexcept {
    if constexpr (std::is_same_v<R, bool>)
        to = result ? VARIANT_TRUE : VARIANT_FALSE;
    else
        to = static_cast<A>(result);
}
inline void Give(BSTR& to, TextView result) { to = NewBstr(result); }
inline void Give(VARIANT& to, const Variant& result) { ValueOut(to, result); }
template <class T>
void Give(SAFEARRAY*& to, const Array<T>& result) {
    to = ArrayOut(result);
}
template <std::derived_from<IDispatch> I, class T>
void Give(I*& to, const Ref<T>& result) {
    to = static_cast<I*>(ObjectOut(result));
}
template <std::derived_from<IDispatch> I, class T>
void Give(I*& to, const LazyRef<T>& result) {
    Give<I, T>(to, static_cast<const Ref<T>&>(result));
}

/// Arguments for members whose parameters need no telling: their overloads take them as they come.
class NaturalValue : public Variant {
public:
    explicit NaturalValue(Variant value) : Variant(std::move(value)) {}
    operator Index() const noexcept { return IndexOf(*this); }
};
inline TextView Natural(BSTR text) noexcept { return View(text); }
inline NaturalValue Natural(const VARIANT& value) { return NaturalValue(ValueFrom(value)); }
inline NaturalValue Natural(const VARIANT* value) {
    return NaturalValue(value != nullptr ? ValueFrom(*value) : Variant());
}
inline std::int32_t Natural(LONG value) noexcept { return static_cast<std::int32_t>(value); }

/// The parameters of a member function, of which the last may tell the caller's line.
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

/// Calls a member function with a slot's arguments, and gives what it returns, if anything, to `take`.
template <auto Function, class Class, class Take, class... A>
void CallMember(Class& object, const Take& take, A... values) {
    using Parameters = ParametersOf<decltype(Function)>;
    static_assert(Parameters::kCount - (Parameters::kTakesWhere ? 1 : 0) == sizeof...(A));
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
            take(result); // the last thing: a call that fails gives none
        }
    }
    (std::index_sequence_for<A...>());
}

} // namespace htdrdd
