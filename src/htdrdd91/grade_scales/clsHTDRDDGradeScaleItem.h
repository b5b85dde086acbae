/// One row of a grade scale.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"

namespace htdrdd {

class clsHTDRDDGradeScaleItem final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDGradeScaleItem"; }

    Text Grade;      ///< the grade for a score in this row; free text
    Text StartValue; ///< lowest percentage for this grade, as written: "90", "89.5", "89,5", "90%"
};

} // namespace htdrdd
