/// One row of a grade scale.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"

namespace htdrdd {

class clsHTDRDDGradeScaleItem final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDGradeScaleItem"; }

    Text Grade;      ///< what a score of this row earns; free text
    Text StartValue; ///< lowest percentage that earns it, as it was written: "90", "89.5", "89,5", "90%"
};

} // namespace htdrdd
