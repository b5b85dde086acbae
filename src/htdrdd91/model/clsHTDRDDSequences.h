/// The sequences of a scrambled test, one a version.
#pragma once

#include "htdrdd91/base/object_list.h"
#include "htdrdd91/model/clsHTDRDDSequence.h"

#include <cstdint>

namespace htdrdd {

/// Add and Remove fail to the caller for a bad key, place or index.
class clsHTDRDDSequences final : public ObjectList<clsHTDRDDSequence> {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDSequences"; }

    /// Adds a sequence that keeps the questions in their printed order. False, with nothing changed, where
    /// there is a sequence already. A number of 0 or less adds an empty sequence.
    bool AddDefault(std::int32_t lNumQuestions);
};

} // namespace htdrdd
