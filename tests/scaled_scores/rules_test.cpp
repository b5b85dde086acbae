#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/process.h"
#include "support/rules.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

/// Handles `Subtests` and `Find` itself; as a host, records the arguments of MsgBoxEx.
class ByName final : public LateBound {
public:
    Variant found = 1;
    Text sought;
    std::function<void()> whenCalled;
    std::vector<Variant> shown;
    Variant Get(TextView name) override { return name == u"Subtests" ? Variant(Ref(this)) : found; }
    Variant Call(TextView name, std::span<Variant> arguments) override {
        if (name == u"MsgBoxEx") {
            shown.assign(arguments.begin(), arguments.end());
        } else {
            EXPECT_TRUE(name == u"Find" && arguments.size() == 1);
            sought = arguments[0].ToText();
            if (whenCalled) whenCalled();
        }
        return found;
    }
};

class ScaledScores : public Session {
protected:
    /// A scaled score by percentile with two learning objectives, valid for the whole test.
    void Renew() {
        ASSERT_TRUE(ReadBytes(Definition("scaled_score_definition")));
        score = rdd->Subtests->Item(1)->ScaledScore->Copy();
        score->DB->Connect = u"x";
        rdd->Subtests->Item(1)->ScaledScore = nullptr;
        forObjective = false;
    }
    void Criteria(std::int32_t primary, std::int32_t secondary = HTDScaledScoreCriteriaNone) {
        score->ScaledScoreCriteriaPrimary = static_cast<HTDScaledScoreCriteria>(primary);
        score->ScaledScoreCriteriaSecondary = static_cast<HTDScaledScoreCriteria>(secondary);
    }
    std::string Judge(bool bVerbose = true) {
        const bool valid = score->IsValid(rdd, forObjective, bVerbose);
        const Said heard = Heard();
        EXPECT_EQ(heard.size(), valid || !bVerbose ? 0U : 1U);
        return heard.empty() ? valid ? "" : "invalid" : heard[0];
    }
    Ref<clsHTDRDDScaledScore> score;
    bool forObjective = false;
};

TEST_F(ScaledScores, AreHeldToTheirRulesInOrder) {
    const auto values = [&](std::int32_t value) {
        score->ScaledScoreValues = static_cast<HTDScaledScoreValues>(value);
    };
    const auto objective = [&](std::int32_t primary, std::int32_t secondary) {
        forObjective = true;
        Criteria(primary, secondary);
    };
    CheckRules(
        "scaled_score",
        {{[&] { values(4); }, [&] { values(1); }},
         {[&] { Criteria(2); }, [&] { Criteria(1); }},
         {[&] { Criteria(1, 3); },
          [&] {
              values(2);
              Criteria(2, 3);
          }},
         {[&] { objective(4, 4); }, [&] { objective(1, 0); }},
         {[&] { objective(1, 4); }, {}},
         {[&] { objective(1, 1); }, {}},
         {[&] { Criteria(5); }, [&] { Criteria(1); }},
         {[&] { Criteria(0); }, [&] { Criteria(1, 5); }},
         {[&] { score->DB->Valid = false; }, {}},
         {[&] { score->DB->DBType = -1; }, {}},
         {[&] { score->DB->Connect = u" "; }, {}},
         {[&] { score->DB->ScoreField = u""; }, {}},
         {[&] { score->DB->MinFieldPrimary = u""; }, {}},
         {[&] { score->DB->MaxFieldPrimary = u""; }, {}},
         {[&] { score->LearningObjectivePrimary = u"algebra"; },
          [&] {
              Criteria(1, 4);
              score->LearningObjectivePrimary = u"";
          }},
         {[&] { score->LearningObjectiveSecondary = u""; },
          [&] {
              Criteria(4);
              score->LearningObjectiveSecondary = u"";
          }}},
        [&] { Renew(); }, [&] { return Judge(); });
    EXPECT_EQ(Judge(false), "invalid");
    score = Make<clsHTDRDDScaledScore>();
    score->Clear();
    EXPECT_TRUE(Judge().starts_with("Scaled Scores"));
}

TEST_F(ScaledScores, SearchByNameAndKeepTheirResultWhereThatFails) {
    const auto isValid = [&](const Variant& in, bool bVerbose = false) {
        return score->IsValid(in, false, bVerbose);
    };
    const std::string member = "clsHTDRDDScaledScore.IsValid";
    Renew();
    const auto other = Make<ByName>();
    EXPECT_TRUE(isValid(other));
    EXPECT_EQ(other->sought, u"Overall");
    other->whenCalled = [&] { score = nullptr; };
    EXPECT_TRUE(isValid(other));
    other->whenCalled = nullptr;
    Renew();
    other->found = u"-1";
    EXPECT_FALSE(isValid(other));
    // This is meant: if the search fails, only the check that the fields are filled counts.
    EXPECT_TRUE(isValid(Ref<clsHTDRDD>()) && isValid({}) && isValid(1) && isValid(score) &&
                isValid(Make<LateBound>()));
    const std::string unknown = "438 Object doesn't support this property or method @ " + member;
    EXPECT_EQ(Heard(), (Said{kNotSet + member, kNotSet + member, kTypeMismatch + member, unknown, unknown}));
    Criteria(1);
    EXPECT_TRUE(isValid({}));
    score->DB = nullptr;
    EXPECT_FALSE(isValid({}));
    EXPECT_EQ(Heard(), Said{kNotSet + member});

    Criteria(0);
    rdd->SetError(other);
    EXPECT_FALSE(isValid({}, true));
    ASSERT_EQ(other->shown.size(), 5U);
    EXPECT_TRUE(other->shown[3].AsObject() != nullptr && !*other->shown[3].AsObject()) << "the owner";
    rdd->SetError(nullptr);
    EXPECT_FALSE(isValid({}, true));
    EXPECT_EQ(files.files[BuildPath(ModuleFolder(), u"Error.log")].substr(0, 9), "Error# 91");
}

TEST_F(ScaledScores, OfLearningObjectivesAreAskedUntilOneIsValid) {
    EXPECT_FALSE(rdd->ScaledScoreIsValid() || rdd->ScaledScoreIsValid(0) || rdd->ScaledScoreIsValid(3));
    Renew();
    rdd->Subtests->Item(1)->ScaledScore = score;
    EXPECT_TRUE(rdd->ScaledScoreIsValid() && rdd->ScaledScoreIsValid(1));
    EXPECT_FALSE(rdd->ScaledScoreIsValid(2));
    rdd->Subtests->Item(1)->ScaledScore->ScaledScoreValues = HTDScaledScoreValuesNone;
    EXPECT_FALSE(rdd->ScaledScoreIsValid());
    Renew();
    rdd->Subtests->Item(2)->ScaledScore = score; // a learning objective's own score, which must not name one
    EXPECT_FALSE(rdd->ScaledScoreIsValid());
    Criteria(1);
    rdd->Subtests->Add(nullptr);
    EXPECT_TRUE(rdd->ScaledScoreIsValid()) << "those behind the first valid one aren't asked";
    rdd->Subtests->Remove(2);
    EXPECT_FALSE(rdd->ScaledScoreIsValid(2));
    EXPECT_EQ(Heard(), Said());
    EXPECT_FALSE(rdd->ScaledScoreIsValid());
    EXPECT_EQ(Heard(), Said{kNotSet + "clsHTDRDD.ScaledScoreIsValid"});
}

} // namespace
} // namespace htdrdd::test
