/// Lists of rules, and how their findings leave the library.
#pragma once

#include "htdrdd91/foundation/findings.h"

#include <array>
#include <cstddef>
#include <span>

namespace htdrdd {

/// A rule: its number in its list, from 0, and its words. Where there is a label, a blank line follows the
/// message, then the label, what the rule's code names, and the tail.
struct Rule {
    std::size_t number;
    TextView caption = {};
    TextView message = {};
    TextView label = {};
    TextView tail = {};
};

/// Whether each row stands at its own number, and none is missing.
template <std::size_t N>
[[nodiscard]] constexpr bool InOrder(const std::array<Rule, N>& rules) noexcept {
    for (std::size_t place = 0; place < N; ++place)
        if (rules[place].number != place) return false;
    return true;
}

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

/// Reports a finding to the host, as a complaint with a caption and without a failure number.
void ReportFinding(const Finding& finding, TextView sLocation, bool bVerbose) noexcept;

/// Writes a position to the variable that a caller gave for it, if there are both.
inline void WriteOffender(std::int32_t* lTarget, std::int32_t lPosition) noexcept {
    if (lTarget != nullptr && lPosition != 0) *lTarget = lPosition;
}

} // namespace htdrdd
