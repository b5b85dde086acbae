/// Test versions of a definition.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/foundation/clsHTDRDDStrings.h"
#include "htdrdd91/model/clsHTDRDDSequences.h"

#include <cstdint>

namespace htdrdd {

enum HTDVersionType : std::int32_t {
    HTDVersionTypeNone = 0,
    HTDVersionTypeKey = 1,      ///< standard versions: a correct answer for each version
    HTDVersionTypeSequence = 2, ///< scrambled versions: one key, a sequence for each version
};

class clsHTDRDDVersions final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDVersions"; }

    Ref<clsHTDRDDSequences> Sequences = Make<clsHTDRDDSequences>(); ///< one for each scrambled version
    Ref<clsHTDRDDStrings> Answers = Make<clsHTDRDDStrings>();       ///< version identifiers, in version order
    std::int32_t Question = 0; ///< position of the question that identifies the version; 0: none

    /// The type, derived from the members above. HTDVersionTypeNone after a failure, which is reported.
    [[nodiscard]] HTDVersionType VType() const noexcept;
};

} // namespace htdrdd
