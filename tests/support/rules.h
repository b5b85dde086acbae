/// Lists of rules, each with what just breaks it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace htdrdd::test {

struct RuleCase {
    std::string verdict; ///< what judging says when the rule is broken
    std::function<void()> breaks;
    std::function<void()> justPasses; ///< empty where the sound thing itself does
};

/// Holds each rule against something sound, then breaks them all from the last to the first: each time the
/// one broken latest, being the first of those that are broken, has to speak. `judge` says nothing where all
/// is well.
template <class Renew, class Judge>
void CheckRules(const std::vector<RuleCase>& rules, Renew renew, Judge judge) {
    for (const RuleCase& rule : rules) {
        renew();
        if (rule.justPasses) rule.justPasses();
        EXPECT_EQ(judge(), "") << "passes: " << rule.verdict;
        renew();
        rule.breaks();
        EXPECT_EQ(judge(), rule.verdict);
    }
    renew();
    for (auto rule = rules.rbegin(); rule != rules.rend(); ++rule) {
        rule->breaks();
        EXPECT_EQ(judge(), rule->verdict) << "with those behind it";
    }
}

} // namespace htdrdd::test
