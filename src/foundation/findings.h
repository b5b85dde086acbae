/// Rules that a definition may break, and what a walk over them finds.
#pragma once

#include "platform/failure.h"
#include "platform/text.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <utility>

namespace htdrdd {

/// The words of a rule. Where there is a label, a blank line follows the message, then the label, what the
/// rule's code names, and the tail.
struct Rule {
    TextView caption;
    TextView message;
    TextView label = {};
    TextView tail = {};
};

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

/// Hands the findings of one list of rules to a sink. It gives back whether the walk ends, so that a rule
/// reads `if (broken && ends(TheRule)) return;`.
class FindingsOf {
public:
    FindingsOf(std::span<const Rule> rules, const FindingSink& found) : rules_(rules), found_(found) {}
    bool operator()(std::size_t rule, const Offender& offender = {}, TextView sNamed = {},
                    Where at = Where::current()) const;

private:
    std::span<const Rule> rules_;
    const FindingSink& found_;
};

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

/// Reports a finding to the host, as a complaint with a caption and without a failure number.
void ReportFinding(const Finding& finding, TextView sLocation, bool bVerbose) noexcept;

/// Writes a position to the variable that a caller gave for it, if there are both.
inline void WriteOffender(std::int32_t* lTarget, std::int32_t lPosition) noexcept {
    if (lTarget != nullptr && lPosition != 0) *lTarget = lPosition;
}

} // namespace htdrdd
