/// References to objects outside, and to their texts.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/component/layout/automation.h"

#include <atomic>
#include <cstdint>
#include <limits>
#include <utility>

namespace htdrdd {

/// A counted reference to an outside object, perhaps empty.
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
    /// Takes over a reference that was counted already.
    static Com Adopt(T* object) noexcept {
        Com com;
        com.object_ = object;
        return com;
    }
    /// The same object by another interface; empty where it has none such.
    template <class U>
    static Com Of(U* other, const GUID& iid = kIid<T>) noexcept {
        void* found = nullptr;
        if (other != nullptr && SUCCEEDED(other->QueryInterface(iid, &found)))
            return Adopt(static_cast<T*>(found));
        return {};
    }

    [[nodiscard]] T* Get() const noexcept { return object_; }
    /// Gives the reference away.
    [[nodiscard]] T* Detach() noexcept { return std::exchange(object_, nullptr); }
    T* operator->() const noexcept { return object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

/// What an object asks for of itself: whether it has an interface. `ppvObject` gets it, counted.
template <class Interface>
HRESULT GiveInterface(Interface* object, REFIID riid, void** ppvObject) noexcept {
    if (ppvObject == nullptr) return E_POINTER;
    *ppvObject = riid == IID_IUnknown || riid == kIid<Interface> ? object : nullptr;
    if (*ppvObject == nullptr) return E_NOINTERFACE;
    object->AddRef();
    return S_OK;
}

/// An object of one interface that counts its references and ends with the last. It is made without any.
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

/// The units of a text, or of a name that ends with a 0; they last as long as it does.
[[nodiscard]] inline TextView View(BSTR text) noexcept {
    return {reinterpret_cast<const char16_t*>(text), SysStringLen(text)};
}
[[nodiscard]] inline TextView NameView(LPCOLESTR name) noexcept {
    return reinterpret_cast<const char16_t*>(name);
}

/// A new text, to be freed by whoever gets it; null where there is no memory.
[[nodiscard]] inline BSTR TryNewBstr(TextView text) noexcept {
    if (text.size() > std::numeric_limits<std::int32_t>::max()) return nullptr;
    return SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()), static_cast<UINT>(text.size()));
}
/// The same, which fails with 7.
[[nodiscard]] inline BSTR NewBstr(TextView text) {
    BSTR made = TryNewBstr(text);
    if (made == nullptr) throw Failure(Err::Memory);
    return made;
}

/// A text that is freed at the end.
class Bstr {
public:
    Bstr() = default;
    explicit Bstr(TextView text) : text_(NewBstr(text)) {}
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(text_); }
    [[nodiscard]] BSTR Get() const noexcept { return text_; }
    /// For whoever writes the text.
    [[nodiscard]] BSTR* Place() noexcept { return &text_; }

private:
    BSTR text_ = nullptr;
};

} // namespace htdrdd
