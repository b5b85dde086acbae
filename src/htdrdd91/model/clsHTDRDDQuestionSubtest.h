/// Membership of a question in one learning objective.
#pragma once

#include "htdrdd91/base/object.h"

namespace htdrdd {

class clsHTDRDDQuestionSubtest final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDQuestionSubtest"; }

    bool Include = false; ///< the question belongs to the learning objective
    double Weight = 1;    ///< of the question in the learning objective
};

} // namespace htdrdd
