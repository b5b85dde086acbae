#include "platform/late_bound.h"

namespace htdrdd {

Variant LateBound::Get(TextView /*name*/) { throw Failure(Err::NoSuchMember); }

void LateBound::Put(TextView /*name*/, const Variant& /*value*/) { throw Failure(Err::NoSuchMember); }

Variant LateBound::Call(TextView /*name*/, std::span<Variant> /*arguments*/) {
    throw Failure(Err::NoSuchMember);
}

} // namespace htdrdd
