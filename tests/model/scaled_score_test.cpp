#include "support/cases.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

class ScaledScores : public Session {
protected:
    using DB = clsHTDRDDScaledScoreDB;
    static constexpr Text DB::*kTexts[]{&DB::Name,
                                        &DB::Catalog,
                                        &DB::Table,
                                        &DB::MinFieldPrimary,
                                        &DB::MaxFieldPrimary,
                                        &DB::MinFieldSecondary,
                                        &DB::MaxFieldSecondary,
                                        &DB::ScoreField,
                                        &DB::ScoreGrade,
                                        &DB::DSNName};

    static Ref<clsHTDRDDScaledScore> Filled() {
        auto score = Make<clsHTDRDDScaledScore>();
        score->LearningObjectivePrimary = u"first";
        score->LearningObjectiveSecondary = u"second";
        score->ScaledScoreName = u"name";
        score->Precision = 2;
        score->ScaledScoreValues = HTDScaledScoreValuesDBPercentile;
        score->ScaledScoreCriteriaPrimary = HTDScaledScoreCriteriaLearningObjective;
        score->ScaledScoreCriteriaSecondary = HTDScaledScoreCriteriaObjective;
        char16_t letter = u'a';
        for (Text DB::*const text : kTexts) (*score->DB).*text = Text{u' ', letter++};
        score->DB->Connect = u" connect ";
        score->DB->User = u" user ";
        score->DB->Password = u" pass word ";
        score->DB->DBType = 5;
        score->DB->DirectoryBased = score->DB->DSNBased = true;
        score->DB->Valid = false;
        return score;
    }
    /// Every member, "|" behind each.
    static Text Told(const clsHTDRDDScaledScore& score) {
        const DB& db = *score.DB;
        Text told;
        for (Text DB::*const text : kTexts) told += db.*text + u"|";
        for (const TextView text :
             {TextView(score.LearningObjectivePrimary), TextView(score.LearningObjectiveSecondary),
              TextView(score.ScaledScoreName), TextView(db.Connect), TextView(db.User),
              TextView(db.Password)})
            told.append(text).append(u"|");
        for (const int number :
             {int{score.Precision}, int{score.ScaledScoreValues}, int{score.ScaledScoreCriteriaPrimary},
              int{score.ScaledScoreCriteriaSecondary}, int{db.DBType}, int{db.DirectoryBased},
              int{db.DSNBased}, int{db.Valid}})
            told += DecimalText(number) + u"|";
        return told;
    }
};

TEST_F(ScaledScores, ACopyTakesEveryMemberOver) {
    const auto score = Filled();
    const auto copy = score->Copy();
    EXPECT_EQ(Told(*copy),
              u" a| b| c| d| e| f| g| h| i| j|first|second|name|connect|user|pass word|2|3|4|2|5|1|1|0|");
    copy->DB->Name = u"other";
    EXPECT_EQ(Told(*score), Told(*Filled()));
}

TEST_F(ScaledScores, AClearedRecordIsANewOneButForItsPrimaryCriterion) {
    EXPECT_EQ(Told(*Make<clsHTDRDDScaledScore>()), u"||||||||||||||||-1|0|1|0|-1|0|0|1|");
    const auto score = Filled();
    const auto settings = score->DB;
    score->Clear();
    EXPECT_EQ(Told(*score), u"||||||||||||||||-1|0|0|0|-1|0|0|1|");
    EXPECT_EQ(score->DB, settings);
    score->DB = nullptr;
    EXPECT_FALSE(score->Copy());
    score->Clear();
    const std::string notSet = "91 Object variable or With block variable not set @ clsHTDRDDScaledScore.";
    EXPECT_EQ(Heard(), (Said{notSet + "Copy", notSet + "Clear"}));
}

} // namespace
} // namespace htdrdd::test
