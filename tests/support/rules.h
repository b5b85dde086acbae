/// Lists of rules, each with a change that just breaks it.
#pragma once

#include "support/words.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace htdrdd::test {

struct RuleCase {
    std::function<void()> breaks;
    std::function<void()> justPasses; ///< empty if the unchanged state just passes
};

/// Checks that a change passes or breaks each rule. Then breaks all rules from the last to the first: the
/// rule broken last comes first, so its complaint is expected. `words` names the file with the complaints.
/// `renew` restores a state that breaks no rule, and `judge` returns an empty text in that state.
template <class Renew, class Judge>
void CheckRules(const std::string& words, const std::vector<RuleCase>& rules, Renew renew, Judge judge) {
    const std::vector<std::string> verdicts = Words(words);
    ASSERT_EQ(verdicts.size(), rules.size());
    for (std::size_t i = 0; i < rules.size(); ++i) {
        renew();
        if (rules[i].justPasses) rules[i].justPasses();
        EXPECT_EQ(judge(), "") << "passes: " << verdicts[i];
        renew();
        rules[i].breaks();
        EXPECT_EQ(judge(), verdicts[i]);
    }
    renew();
    for (std::size_t i = rules.size(); i-- > 0;) {
        rules[i].breaks();
        EXPECT_EQ(judge(), verdicts[i]) << "with those behind it";
    }
}

} // namespace htdrdd::test
