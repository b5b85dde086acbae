#include "htdrdd91/base/late_bound.h"

namespace htdrdd {

Variant LateBound::Get(TextView /*name*/) { throw Failure(Err::NoSuchMember); }

void LateBound::Put(TextView /*name*/, const Variant& /*value*/) { throw Failure(Err::NoSuchMember); }

Variant LateBound::Call(TextView /*name*/, std::span<Variant> /*arguments*/) {
    throw Failure(Err::NoSuchMember);
}

Ref<LateBound> BoundObject(const Variant& value, Where at) {
    const Ref<Object>* const object = value.AsObject();
    const bool nothing =
        object != nullptr ? !*object : value.IsMissing() || value.Is() == Variant::Kind::Empty;
    if (nothing) throw Failure(Err::NotSet, at);
    if (object == nullptr) throw Failure(Err::TypeMismatch, at);
    Ref<LateBound> bound(dynamic_cast<LateBound*>(object->Get()));
    if (!bound) throw Failure(Err::NoSuchMember, at);
    return bound;
}

} // namespace htdrdd
