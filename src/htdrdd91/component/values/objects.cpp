
#include "htdrdd91/component/values/objects.h"

#include "htdrdd91/component/values/module_reference.h"

#include <cstring>

namespace htdrdd {
namespace {

/// The identifier that asks a face of this library for its object. Other libraries in the process, and other
/// copies of this one, don't know it.
const GUID& ObjectIdentifier() noexcept {
    static const GUID identifier = [] {
        GUID made{0x6D2C41E5, 0x90B3, 0x4D7A, {}};
        const void* const own = &moduleReferences;
        static_assert(sizeof own == sizeof made.Data4);
        std::memcpy(static_cast<void*>(made.Data4), static_cast<const void*>(&own), sizeof own);
        return made;
    }();
    return identifier;
}

} // namespace

HRESULT QueryObject(Object& object, REFIID riid, void** result) noexcept {
    if (!(riid == ObjectIdentifier())) return E_NOINTERFACE;
    object.AddRef();
    *result = &object;
    return S_OK;
}

Ref<Object> OwnObject(IUnknown* face) noexcept {
    void* found = nullptr;
    if (face == nullptr || FAILED(face->QueryInterface(ObjectIdentifier(), &found))) return {};
    if (found == face) { // an object that claims to have every interface
        face->Release();
        return {};
    }
    Ref<Object> object(static_cast<Object*>(found));
    object->Release(); // the reference that the query counted
    return object;
}

std::optional<Ref<Object>> TryObjectFrom(IUnknown* object) {
    if (object == nullptr) return Ref<Object>();
    if (Ref<Object> own = OwnObject(object)) return own;
    if (auto dispatch = Com<IDispatch>::Of(object)) return Make<ForeignObject>(std::move(dispatch));
    return {};
}

Ref<Object> ObjectFrom(IUnknown* object) {
    if (const auto found = TryObjectFrom(object)) return *found;
    throw Failure(Err::TypeMismatch);
}

IDispatch* ObjectOut(const Ref<Object>& object) {
    if (!object) return nullptr;
    const auto* const foreign = dynamic_cast<const ForeignObject*>(object.Get());
    IDispatch& dispatch = foreign != nullptr ? foreign->Outside() : FaceOf(*object);
    dispatch.AddRef();
    return &dispatch;
}

} // namespace htdrdd
