#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/scaled_scores/scaled_score_members.h"
#include "support/cases.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

class ScaledScoreForms : public Session {
protected:
    ScaledScoreForms() {
        score->ScaledScoreName = u"old";
        score->DB->Valid = false;
    }
    /// The attributes that differ from those of a cleared record, and the reports.
    Text Told() {
        const auto cleared = Make<clsHTDRDDScaledScore>();
        cleared->Clear();
        Text told;
        for (const ScaledScoreRow& row : kScaledScoreMembers) {
            Text value;
            Text before;
            row.append(value, *score, Where::current());
            row.append(before, *cleared, Where::current());
            if (row.form != ScaledScoreRow::Form::Enciphered && value != before)
                told.append(u" ").append(row.attribute).append(u"=").append(value);
        }
        const auto secret = [&](const char16_t* name, TextView value) {
            if (!value.empty()) told.append(name).append(value);
        };
        secret(u" User=", score->DB->User);
        secret(u" Password=", score->DB->Password);
        secret(u" Connect=", score->DB->Connect);
        for (const std::string& line : Heard()) told += u" [" + FromUtf8(line) + u"]";
        return told;
    }
    Ref<clsHTDRDDScaledScore> score = Make<clsHTDRDDScaledScore>();
};

TEST_F(ScaledScoreForms, TextsAreReadPairByPair) {
    CheckWords("scaled_score_texts", [this](const Fields& row) {
        const bool result = score->FromString(row[0], u";");
        return (result ? u"true" : u"false") + Told();
    });
    EXPECT_TRUE(score->FromString(u"ScaledScoreName=a;b\tScaledScorePrecision=1"));
    EXPECT_EQ(Told(), u" Name=a;b Precision=1");
    EXPECT_TRUE(score->DB->Valid);
}

TEST_F(ScaledScoreForms, ExchangeFilesAreReadAttributeByAttribute) {
    CheckWords("scaled_score_files", [this](const Fields& row) {
        files.files[u"/score.xml"] =
            ToUtf8(u"<HaldenTallyDesk FileType=\"scaledscore\">" + row[0] + u"</HaldenTallyDesk>");
        const bool result = score->Import(u"/score.xml");
        return (result ? u"true" : u"false") + Told();
    });
    files.files[u"/score.xml"] = "<HaldenTallyDesk FileType=\"GradeScale\"><ScaledScore/></HaldenTallyDesk>";
    score->ScaledScoreName = u"old";
    EXPECT_FALSE(score->Import(u"/score.xml") || score->Import(u"/none.xml"));
    EXPECT_EQ(score->ScaledScoreName, u"old");
}

TEST_F(ScaledScoreForms, AreWrittenInTheOrderOfTheirMembers) {
    std::int32_t number = 1;
    for (const ScaledScoreRow& row : kScaledScoreMembers) row.put(*score, DecimalText(++number), {});
    score->DB->Password = u" pass\tword ";
    const std::vector<std::string> written = Words("scaled_score_written");
    EXPECT_EQ(ToUtf8(score->ToString()), written.at(0));
    EXPECT_TRUE(score->Export(u"/score.xml"));
    EXPECT_EQ(files.files[u"/score.xml"], written.at(1));
    score->DB->Table = u"\x01";
    EXPECT_FALSE(score->Export(u"/score.xml"));
    EXPECT_EQ(files.files[u"/score.xml"], written.at(1));
    score->DB = nullptr;
    EXPECT_EQ(score->ToString(u"; "), u"ScaledScoreName=2; ScaledScoreCriteriaPrimary=3; "
                                      u"ScaledScoreCriteriaSecondary=4; ScaledScoreValues=5; "
                                      u"ScaledScoreLearningObjectivePrimary=6; "
                                      u"ScaledScoreLearningObjectiveSecondary=7; ScaledScorePrecision=8; ");
    EXPECT_FALSE(score->FromString(u"ScaledScoreName=a"));
    EXPECT_EQ(Heard(),
              (Said{kArgument + "clsHTDRDDScaledScore.Export", kNotSet + "clsHTDRDDScaledScore.ToString",
                    kNotSet + "clsHTDRDDScaledScore.Clear", kNotSet + "clsHTDRDDScaledScore.FromString"}));
}

} // namespace
} // namespace htdrdd::test
