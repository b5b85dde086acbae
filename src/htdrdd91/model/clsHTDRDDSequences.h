/// The sequences of a scrambled test, one per version.
#pragma once

#include "htdrdd91/base/object_list.h"
#include "htdrdd91/model/clsHTDRDDSequence.h"

#include <cstdint>

namespace htdrdd {

/// The failure of Add and Remove for a bad key, place or index passes to the caller.
class clsHTDRDDSequences final : public ObjectList<clsHTDRDDSequence> {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDSequences"; }

    /// Adds a sequence in the printed order of the questions. Returns false, and changes nothing, if there is
    /// a sequence already. A number of 0 or less adds an empty sequence.
    bool AddDefault(std::int32_t lNumQuestions);
};

} // namespace htdrdd
