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

/// An outside object whose members are called by name: a host object, what a host keeps in oState, a stand-in
/// for a definition. Arguments go by reference in their own kinds, those left out as missing; what a method
/// writes to them comes back. A call that fails is a failure with the number and text that the object told,
/// or with 438 if it has no such member.
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

/// Answers a face's query for its object; E_NOINTERFACE for any other query.
HRESULT QueryObject(Object& object, REFIID riid, void** result) noexcept;
/// The object of a face of this library; empty for any other object.
[[nodiscard]] Ref<Object> OwnObject(IUnknown* face) noexcept;

/// An object that came from outside: the library's own if it is a face, else a ForeignObject. Empty for a
/// null pointer. Fails with 13 for an object that can't be called by name.
[[nodiscard]] Ref<Object> ObjectFrom(IUnknown* object);
/// The same; nothing for an object that can't be called by name.
[[nodiscard]] std::optional<Ref<Object>> TryObjectFrom(IUnknown* object);
/// The outside object of a reference, counted for the caller; null for an empty one.
[[nodiscard]] IDispatch* ObjectOut(const Ref<Object>& object);

} // namespace htdrdd
