/// References to outside objects and their texts.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/component/layout/automation.h"

#include <atomic>
#include <cstdint>
#include <limits>
#include <utility>

namespace htdrdd {

/// A counted reference to an outside object; may be empty.
template <class T>
class Com {
public:
    Com() = default;
    explicit Com(T* object) noexcept : object_(object) {
        if (object_ != nullptr) object_->AddRef();
    }
    Com(const Com& other) noexcept : Com(other.object_) {}
    Com(Com&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Com& operator=(Com other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Com() {
        if (object_ != nullptr) object_->Release();
    }
    /// Adopts a reference that is already counted.
    static Com Adopt(T* object) noexcept {
        Com com;
        com.object_ = object;
        return com;
    }
    /// The same object by another interface; empty if it doesn't have that interface.
    template <class U>
    static Com Of(U* other, const GUID& iid = kIid<T>) noexcept {
        void* found = nullptr;
        if (other != nullptr && SUCCEEDED(other->QueryInterface(iid, &found)))
            return Adopt(static_cast<T*>(found));
        return {};
    }

    [[nodiscard]] T* Get() const noexcept { return object_; }
    /// Hands the reference over to the caller.
    [[nodiscard]] T* Detach() noexcept { return std::exchange(object_, nullptr); }
    T* operator->() const noexcept { return object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

/// QueryInterface of an object with one interface. `ppvObject` gets the interface, counted, or null.
template <class Interface>
HRESULT GiveInterface(Interface* object, REFIID riid, void** ppvObject) noexcept {
    if (ppvObject == nullptr) return E_POINTER;
    *ppvObject = riid == IID_IUnknown || riid == kIid<Interface> ? object : nullptr;
    if (*ppvObject == nullptr) return E_NOINTERFACE;
    object->AddRef();
    return S_OK;
}

/// An object with one interface that counts its references and ends with the last. It starts without any.
template <class Self, class Interface>
class Counted : public Interface {
public:
    HRESULT QueryInterface(REFIID riid, void** ppvObject) noexcept final {
        return GiveInterface<Interface>(this, riid, ppvObject);
    }
    ULONG AddRef() noexcept final { return ++references_; }
    ULONG Release() noexcept final {
        const ULONG left = --references_;
        if (left == 0) delete static_cast<Self*>(this);
        return left;
    }

private:
    std::atomic<ULONG> references_{0}; // factories may be shared by threads
};

/// The units of a text, or of a name that ends with a 0; valid as long as the text.
[[nodiscard]] inline TextView View(BSTR text) noexcept {
    return {reinterpret_cast<const char16_t*>(text), SysStringLen(text)};
}
[[nodiscard]] inline TextView NameView(LPCOLESTR name) noexcept {
    return reinterpret_cast<const char16_t*>(name);
}

/// A new text, which the caller frees; null if there is no memory.
[[nodiscard]] inline BSTR TryNewBstr(TextView text) noexcept {
    if (text.size() > std::numeric_limits<std::int32_t>::max()) return nullptr;
    return SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()), static_cast<UINT>(text.size()));
}
/// The same, but fails with 7.
[[nodiscard]] inline BSTR NewBstr(TextView text) {
    BSTR made = TryNewBstr(text);
    if (made == nullptr) throw Failure(Err::Memory);
    return made;
}

/// A text that the destructor frees.
class Bstr {
public:
    Bstr() = default;
    explicit Bstr(TextView text) : text_(NewBstr(text)) {}
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(text_); }
    [[nodiscard]] BSTR Get() const noexcept { return text_; }
    /// The variable, for functions that write the text.
    [[nodiscard]] BSTR* Place() noexcept { return &text_; }

private:
    BSTR text_ = nullptr;
};

} // namespace htdrdd
