/// Objects whose members are called by name.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/base/variant.h"

#include <span>

namespace htdrdd {

/// An object that is bound by member name at run time. A member that isn't there fails with 438.
class LateBound : public Object {
public:
    /// Reads a property.
    virtual Variant Get(TextView name);
    /// Writes a property.
    virtual void Put(TextView name, const Variant& value);
    /// Calls a method. Every argument is by reference: what the method writes to it, the caller sees. A
    /// missing argument is one that was left out.
    virtual Variant Call(TextView name, std::span<Variant> arguments);
};

/// The object that a value refers to, to be bound by name. Fails with 91 where the value refers to nothing,
/// with 13 where it is no reference, and with 438 where its object has no members that are bound by name.
[[nodiscard]] Ref<LateBound> BoundObject(const Variant& value, Where at = Where::current());

} // namespace htdrdd
