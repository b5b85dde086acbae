/// Numbers under keys.
#pragma once

#include "htdrdd91/base/collection.h"
#include "htdrdd91/base/object.h"

#include <cstdint>

namespace htdrdd {

/// A collection of numbers that is passed by reference.
class NumberCollection final : public Object, public Collection<std::int32_t> {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"NumberCollection"; }
};

} // namespace htdrdd
