/// Membership of a question in one subtest.
#pragma once

#include "htdrdd91/base/object.h"

namespace htdrdd {

class clsHTDRDDQuestionSubtest final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDQuestionSubtest"; }

    bool Include = false; ///< the question belongs to the subtest
    double Weight = 1;    ///< of the question in the subtest
};

} // namespace htdrdd
