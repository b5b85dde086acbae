/// What a walk over the rules of a definition finds.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace htdrdd {

/// Where a rule is broken: positions and numbers from 1, and 0 for what the rule doesn't speak of.
struct Offender {
    std::int32_t lQuestion = 0;
    std::int32_t lKey = 0;
    std::int32_t lSubtest = 0;
    std::int32_t lVersion = 0;
    std::int32_t lItem = 0; ///< row of a grade scale
};

/// A broken rule.
struct Finding {
    std::int32_t lRule; ///< its number in the list that was walked, from 1
    TextView sCaption;
    Text sMessage; ///< in full; empty where the library has no words for it
    Offender offender;
    Where at; ///< line of the rule
};

/// Takes the findings of a walk, in the order of the rules. True ends the walk. It must not change what is
/// walked.
using FindingSink = std::function<bool(Finding)>;

/// What `walk(const FindingSink&)` finds first. The walk ends there.
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
