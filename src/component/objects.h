/// Objects on their way between outside hosts and the library.
#pragma once

#include "component/com.h"
#include "platform/object.h"

#include <optional>

namespace htdrdd {

/// The face of an object: the same one each time. It lives as long as the object, and references to it are
/// references to the object.
[[nodiscard]] IDispatch& FaceOf(Object& object);

/// Gives the object behind a face, to those who know how to ask for it.
HRESULT GiveBehind(Object& object, REFIID riid, void** result) noexcept;
/// The object behind a face of this library; empty for any other object.
[[nodiscard]] Ref<Object> OwnObject(IUnknown* face) noexcept;

/// An object that came from outside: the library's own behind its face, or one whose members are called by
/// name. Empty for a null pointer. Fails with 13 for an object that can't be called by name.
[[nodiscard]] Ref<Object> ObjectFrom(IUnknown* object);
/// The same; nothing for an object that can't be called by name.
[[nodiscard]] std::optional<Ref<Object>> TryObjectFrom(IUnknown* object);
/// The outside object of a reference, counted for whoever gets it; null for an empty one.
[[nodiscard]] IDispatch* ObjectOut(const Ref<Object>& object);

} // namespace htdrdd
