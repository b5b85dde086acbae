/// Objects whose members are called by name.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/base/variant.h"

#include <span>

namespace htdrdd {

/// An object whose members are bound by name at run time. An unknown member fails with 438.
class LateBound : public Object {
public:
    /// Reads a property.
    virtual Variant Get(TextView name);
    /// Writes a property.
    virtual void Put(TextView name, const Variant& value);
    /// Calls a method. All arguments are passed by reference: the caller sees the values that the method
    /// assigns. An omitted argument is a missing value.
    virtual Variant Call(TextView name, std::span<Variant> arguments);
};

/// The object that a value refers to, for binding by name. Fails with 91 if the value refers to no object,
/// with 13 if it is not a reference, and with 438 if the object has no members bound by name.
[[nodiscard]] Ref<LateBound> BoundObject(const Variant& value, Where at = Where::current());

} // namespace htdrdd
