/// Objects of outside hosts.
#pragma once

#include "component/com.h"
#include "platform/late_bound.h"

namespace htdrdd {

/// An outside object whose members are called by name: a host object, what a host keeps in oState, a stand-in
/// for a definition. Arguments go by reference in their own kinds, those left out as missing; what a method
/// writes to them comes back. A call that fails is a failure with the number and text that the object gave,
/// or with 438 where it has no such member.
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

} // namespace htdrdd
