/// Lists of rules, each with what just breaks it.
#pragma once

#include "support/words.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace htdrdd::test {

struct RuleCase {
    std::function<void()> breaks;
    std::function<void()> justPasses; ///< empty where the sound thing itself does
};

/// Holds each rule against something sound, then breaks them all from the last to the first: each time the
/// one broken latest, being the first of those that are broken, has to speak, in the words that a file has
/// for it. `judge` says nothing where all is well.
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
