/// Objects between outside hosts and the library.
#pragma once

#include "htdrdd91/base/late_bound.h"
#include "htdrdd91/base/object.h"
#include "htdrdd91/component/values/com.h"

#include <optional>
#include <utility>

namespace htdrdd {

/// The face of an object, by which outside hosts know it: the same one each time. It lives as long as the
/// object, and references to it are references to the object. Fails with 13 for an object of a class that
/// hosts don't see. Defined in faces/classes.cpp.
[[nodiscard]] IDispatch& FaceOf(Object& object);

/// An outside object whose members are called by name: a host object, the object in oState, a stand-in for a
/// definition. Arguments are passed by reference in their own kinds, omitted ones as missing; the caller
/// sees a method's assignments to them. A failed call fails with the number and text from the object, or with
/// 438 if it has no such member.
class ForeignObject final : public LateBound {
public:
    explicit ForeignObject(Com<IDispatch> outside) noexcept : outside_(std::move(outside)) {}

    [[nodiscard]] IDispatch& Outside() const noexcept { return *outside_.Get(); }

    Variant Get(TextView name) override;
    void Put(TextView name, const Variant& value) override;
    Variant Call(TextView name, std::span<Variant> arguments) override;

private:
    Variant Invoke(TextView name, WORD flags, DISPPARAMS& parameters);

    Com<IDispatch> outside_;
};

/// Answers a query to a face for its object; E_NOINTERFACE for any other query.
HRESULT QueryObject(Object& object, REFIID riid, void** result) noexcept;
/// The object of a face of this library; empty for any other object.
[[nodiscard]] Ref<Object> OwnObject(IUnknown* face) noexcept;

/// The object for an outside object: the library's own for a face, otherwise a ForeignObject. Empty for a
/// null pointer. Fails with 13 for an object that can't be called by name.
[[nodiscard]] Ref<Object> ObjectFrom(IUnknown* object);
/// The same; std::nullopt for an object that can't be called by name.
[[nodiscard]] std::optional<Ref<Object>> TryObjectFrom(IUnknown* object);
/// The outside object for a reference, counted for the caller; null for an empty reference.
[[nodiscard]] IDispatch* ObjectOut(const Ref<Object>& object);

} // namespace htdrdd
