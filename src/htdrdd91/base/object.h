/// Shared objects and references to them.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace htdrdd {

/// Base of faces. A face is an object as outside hosts see it, and ends with the object.
class OutsideFace {
public:
    OutsideFace() = default;
    OutsideFace(const OutsideFace&) = delete;
    OutsideFace& operator=(const OutsideFace&) = delete;
    virtual ~OutsideFace() = default;
};

/// Base of all shared objects. An object is created with Make, never on the stack, and ends with its last
/// reference. An object and all references to it belong to one thread at a time.
class Object {
public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    Object(Object&&) = delete;
    Object& operator=(Object&&) = delete;

    /// The class name that outside hosts know; empty for classes that they don't see.
    [[nodiscard]] virtual TextView ClassName() const noexcept { return {}; }

    /// The reference count, which Ref and outside faces keep. Both return the new count.
    std::uint32_t AddRef() const noexcept { return ++references_; }
    std::uint32_t Release() const noexcept {
        const std::uint32_t left = --references_;
        if (left == 0) delete this;
        return left;
    }
    /// The object's only face; empty until an outside host sees the object.
    [[nodiscard]] std::unique_ptr<OutsideFace>& Face() const noexcept { return face_; }

protected:
    virtual ~Object() = default;

private:
    mutable std::uint32_t references_ = 0;
    mutable std::unique_ptr<OutsideFace> face_;
};

/// A shared reference, possibly empty. Assignment replaces the reference and copies no object. Using an empty
/// reference fails with 91.
template <class T>
class Ref {
public:
    using Target = T;
    Ref() = default;
    Ref(std::nullptr_t) {}
    explicit Ref(T* object) : object_(object) { Hold(); }
    Ref(const Ref& other) : object_(other.object_) { Hold(); }
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    template <class U>
    requires(!std::is_same_v<T, U> && std::is_convertible_v<U*, T*>) Ref(const Ref<U>& other)
        : object_(other.Get()) {
        Hold();
    }
    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Ref() { Drop(); }

    T* operator->() const { return &Demand(); }
    T& operator*() const { return Demand(); }
    /// The object, or a null pointer.
    [[nodiscard]] T* Get() const noexcept { return object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    friend bool operator==(const Ref& a, const Ref& b) noexcept { return a.object_ == b.object_; }

private:
    [[nodiscard]] T& Demand() const {
        if (object_ == nullptr) throw Failure(Err::NotSet);
        return *object_;
    }
    void Hold() const noexcept {
        if (object_ != nullptr) static_cast<const Object*>(object_)->AddRef();
    }
    void Drop() const noexcept {
        if (object_ != nullptr) static_cast<const Object*>(object_)->Release();
    }

    T* object_ = nullptr;
};

/// A new object with one reference to it.
template <class T, class... Arguments>
[[nodiscard]] Ref<T> Make(Arguments&&... arguments) {
    return Ref<T>(new T(std::forward<Arguments>(arguments)...));
}

/// Keeps an object alive to the end of a scope. Code that may call a host holds the objects that it works on:
/// during a report, a message or an event the host may release or replace them.
template <class T>
[[nodiscard]] Ref<T> Held(T& object) {
    return Ref<T>(&object);
}

/// A reference whose object is created on first access, so it is never empty. It is not copyable, since a
/// copy would create its own object; `Ref<T> r = lazy;` refers to the same object.
template <class T>
class LazyRef {
public:
    using Target = T;
    LazyRef() = default;
    LazyRef(const LazyRef&) = delete;
    LazyRef& operator=(const LazyRef& other) { return *this = other.Made(); }
    ~LazyRef() = default;
    LazyRef& operator=(Ref<T> object) noexcept {
        object_ = std::move(object);
        original_ = nullptr;
        return *this;
    }
    /// Makes the first access copy `original`, which nobody may change from now on.
    void MakeCopyOf(Ref<const T> original) noexcept {
        object_ = nullptr;
        original_ = std::move(original);
    }
    operator const Ref<T>&() const { return Made(); }
    T* operator->() const { return Made().Get(); }
    T& operator*() const { return *Made(); }
    /// The object, or the original that the first access will copy. Read-only access without a copy.
    [[nodiscard]] const T& Peek() const { return original_ ? *original_ : *Made(); }

private:
    const Ref<T>& Made() const {
        if (!object_) {
            if constexpr (requires(const T& original) { original.Copy(); })
                object_ = original_ ? original_->Copy() : Make<T>();
            else
                object_ = Make<T>();
            original_ = nullptr;
        }
        return object_;
    }
    mutable Ref<T> object_;
    mutable Ref<const T> original_;
};

} // namespace htdrdd
