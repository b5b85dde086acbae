#include "htdrdd91/scaled_scores/scaled_score_members.h"
#include "support/cases.h"
#include "support/session.h"
#include "support/telling.h"

namespace htdrdd::test {
namespace {

class Document : public Session {
protected:
    Ref<clsHTDRDDQuestion> Question(TextView name, std::initializer_list<bool> memberships) {
        auto question = Make<clsHTDRDDQuestion>();
        question->QuestionName = name;
        for (const bool include : memberships) question->Subtests->Add(include);
        rdd->Questions->Add(question);
        return question;
    }
    /// The number and points of extra credit, after "no " if there is none.
    Text ExtraCredit(const Variant& subtest) {
        std::int32_t number = -7;
        double points = -7;
        const bool any = rdd->GetExtraCredit(subtest, &number, &points);
        return (any ? u"" : u"no ") + DecimalText(number) + u" " + InvariantText(points);
    }
    /// The positions of a subtest's questions, each followed by ";".
    Text QuestionsOf(const Variant& subtest) {
        const auto positions = rdd->GetSubtestQuestions(subtest);
        if (!positions) return u"none";
        Text text;
        for (const std::int32_t position : *positions) text += DecimalText(position) + u";";
        return text;
    }
};

TEST_F(Document, ClearResetsAllButTheFileName) {
    rdd->Clear();
    const Text cleared = Told(*rdd);
    EXPECT_EQ(rdd->ReportType, HTDReportTypeSurvey);
    ASSERT_TRUE(ReadBytes(kFullDefinition));
    const auto header = rdd->Header;
    rdd->oState = rdd->Questions;
    rdd->Clear();
    EXPECT_EQ(Told(*rdd), cleared);
    EXPECT_TRUE(rdd->FileName == u"/exam.rdd" && !rdd->oState && rdd->Header == header);
    rdd->Header = nullptr; // filling it fails, the rest is cleared
    rdd->TemplateName = u"x";
    rdd->Clear();
    EXPECT_EQ(rdd->TemplateName, u"");
    EXPECT_EQ(Heard(), Said{kNotSet + "basPublic.InitializeHeader"});
    rdd->ScaledScore = nullptr;
    EXPECT_EQ(FailureOf([&] { rdd->Clear(); }), 91);
}

TEST_F(Document, AScaledScoreIsCopiedAndCleared) {
    const auto score = Make<clsHTDRDDScaledScore>();
    const Text fresh = Told(*score);
    std::int32_t number = 1; // gives each member a value that differs from its initial one
    for (const ScaledScoreRow& row : kScaledScoreMembers) row.put(*score, DecimalText(++number), {});
    score->DB->Valid = false;
    const Text filled = Told(*score);
    EXPECT_EQ(Told(*score->Copy()), filled);
    score->DB->Connect = u" a b ";
    score->DB->Password = u" p ";
    EXPECT_EQ(score->Copy()->DB->Connect, u"a b");
    EXPECT_EQ(score->Copy()->DB->Password, u"p");
    score->Copy()->DB->Name = u"other";
    EXPECT_NE(score->DB->Name, u"other");
    score->Clear();
    EXPECT_EQ(std::exchange(score->ScaledScoreCriteriaPrimary, HTDScaledScoreCriteriaOverall),
              HTDScaledScoreCriteriaNone);
    EXPECT_EQ(Told(*score), fresh) << "but for its primary criterion";
    score->DB = nullptr;
    EXPECT_FALSE(score->Copy());
    score->Clear();
    const std::string notSet = kNotSet + "clsHTDRDDScaledScore.";
    EXPECT_EQ(Heard(), (Said{notSet + "Copy", notSet + "Clear"}));
}

TEST_F(Document, ADefaultSubtestTakesQuestionsWithoutMemberships) {
    Question(u"a", {});
    Question(u"b", {false});
    EXPECT_TRUE(rdd->AddDefaultSubtest());
    EXPECT_EQ(QuestionsOf(u"Overall"), u"1;");
    EXPECT_TRUE(rdd->AddDefaultSubtest());
    EXPECT_EQ(rdd->Subtests->Count(), 1);
    rdd->Subtests = nullptr;
    EXPECT_FALSE(rdd->AddDefaultSubtest());
    EXPECT_EQ(Heard(), Said{kNotSet + "clsHTDRDDSubtests.AddDefaultSubtest"});
}

TEST_F(Document, ExtraCreditCountsGradedAndSubjectiveQuestions) {
    ASSERT_TRUE(ReadBytes(Definition("extra_credit_definition")));
    EXPECT_EQ(ExtraCredit(1) + u"; " + ExtraCredit(u"2"), u"3 13; 1 1.5");
    for (const Variant& none : {Variant(0), Variant(-1), Variant(3), Variant(2.1), Variant(1e300)})
        EXPECT_EQ(ExtraCredit(none), u"no 0 0");
    EXPECT_EQ(Heard(), Said());
    EXPECT_EQ(ExtraCredit(u"x"), u"no 0 0");
    EXPECT_EQ(ExtraCredit(.4), u"no 0 0") << "the position is 0, which is no membership";
    Question(u"short", {true});
    EXPECT_EQ(ExtraCredit(2), u"no 1 1.5") << "with what was found up to the failure";
    const std::string member = "clsHTDRDD.GetExtraCredit";
    EXPECT_EQ(Heard(), (Said{kTypeMismatch + member, kNotSet + member, kNotSet + member}));
}

TEST_F(Document, QuestionsOfASubtestComeByPositionOrName) {
    Read(u"[Report]\nNumSubtests=3\nSubtestName=Overall\tAlgebra\tALGEBRA\n\nend\n");
    Question(u"a", {true, false, true});
    Question(u"b", {true, true, true});
    EXPECT_EQ(QuestionsOf(1) + u" " + QuestionsOf(std::int16_t{2}), u"1;2; 2;");
    EXPECT_EQ(QuestionsOf(u"algebra"), u"2;") << "the first of a name";
    EXPECT_EQ(rdd->Subtests->Find(u"ALGEBRA"), 3) << "case counts";
    EXPECT_EQ(rdd->GetSubtestQuestions(u"overall")->Item(u"B"), 2);
    for (const std::int32_t position : {99, 0, -1}) EXPECT_EQ(QuestionsOf(position), u"");
    for (const Variant& none : {Variant(), Variant::Empty(), Variant::Null(), Variant(1.0), Variant(true),
                                Variant(u"1"), Variant(rdd)})
        EXPECT_EQ(QuestionsOf(none), u"none");
    EXPECT_EQ(Heard(), Said());
    Question(u"A", {true, false});
    for (const std::int32_t position : {1, 3}) EXPECT_EQ(QuestionsOf(position), u"none");
    const std::string member = "clsHTDRDD.GetSubtestQuestions";
    EXPECT_EQ(Heard(), (Said{kKeyInUse + member, kNotSet + member}));
}

} // namespace
} // namespace htdrdd::test
