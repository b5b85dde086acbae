/// The findings of a walk over the rules of a definition.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace htdrdd {

/// The place of an offender: positions and numbers from 1; 0 for parts that the rule doesn't concern.
struct Offender {
    std::int32_t lQuestion = 0;
    std::int32_t lKey = 0;
    std::int32_t lSubtest = 0;
    std::int32_t lVersion = 0;
    std::int32_t lItem = 0; ///< row of a grade scale
};

/// A broken rule.
struct Finding {
    std::int32_t lRule; ///< the rule's number in its list, from 1
    TextView sCaption;
    Text sMessage; ///< in full; empty if the library has no words for it
    Offender offender;
    Where at; ///< source line of the rule
};

/// Receives the findings of a walk, in the order of the rules. Returns true to end the walk. It must not
/// change the objects that are walked.
using FindingSink = std::function<bool(Finding)>;

/// The first finding of `walk(const FindingSink&)`. The walk ends there.
template <class Walk>
[[nodiscard]] std::optional<Finding> FirstFinding(Walk walk) {
    std::optional<Finding> first;
    walk(FindingSink([&](Finding finding) {
        first = std::move(finding);
        return true;
    }));
    return first;
}

} // namespace htdrdd
