/// Lists of rules, and reports of their findings.
#pragma once

#include "htdrdd91/foundation/findings.h"

#include <array>
#include <cstddef>
#include <span>

namespace htdrdd {

/// A rule: its number in its list, from 0, and its texts. If there is a label, the message is followed by a
/// blank line, the label, the name that the rule's code passes, and the tail.
struct Rule {
    std::size_t number;
    TextView caption = {};
    TextView message = {};
    TextView label = {};
    TextView tail = {};
};

/// Whether each row is at its own number and none is missing.
template <std::size_t N>
[[nodiscard]] constexpr bool InOrder(const std::array<Rule, N>& rules) noexcept {
    for (std::size_t place = 0; place < N; ++place)
        if (rules[place].number != place) return false;
    return true;
}

/// Passes the findings of one list of rules to a sink. The call returns true if the walk ends, so a rule
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

/// Writes a position to the caller's variable, if there are both.
inline void WriteOffender(std::int32_t* lTarget, std::int32_t lPosition) noexcept {
    if (lTarget != nullptr && lPosition != 0) *lTarget = lPosition;
}

} // namespace htdrdd
