#include "support/cases.h"
#include "support/session.h"

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
    void Subtests(std::initializer_list<TextView> names) {
        for (const TextView name : names) {
            auto subtest = Make<clsHTDRDDSubtest>();
            subtest->SubtestName = name;
            rdd->Subtests->Add(subtest);
        }
    }
    /// Number and points of extra credit, behind "no" where there is none.
    Text ExtraCredit(const Variant& subtest) {
        std::int32_t number = -7;
        double points = -7;
        const bool any = rdd->GetExtraCredit(subtest, &number, &points);
        return (any ? u"" : u"no ") + DecimalText(number) + u" " + InvariantText(points);
    }
    /// Positions of a subtest's questions, ";" behind each.
    Text QuestionsOf(const Variant& subtest) {
        const auto positions = rdd->GetSubtestQuestions(subtest);
        if (!positions) return u"none";
        Text text;
        for (std::int32_t l = 1; l <= positions->Count(); ++l) text += DecimalText(positions->Item(l)) + u";";
        return text;
    }
};

TEST_F(Document, ClearResetsAllButTheFileName) {
    EXPECT_EQ(rdd->ReportType, 0);
    const auto header = rdd->Header;
    rdd->FileName = u"/exam.rdd";
    rdd->TemplateName = rdd->Description = rdd->Notes = u"x";
    rdd->NumPages = 2;
    rdd->CustomHeader = true;
    rdd->oState = rdd->Questions;
    Question(u"a", {true});
    Subtests({u"Overall"});
    rdd->Versions->Sequences->AddDefault(1);
    rdd->Versions->Answers->Add(u"A");
    rdd->Versions->Question = 1;
    rdd->GradeScale->AddDelimitedStrings(u"A", u"0");
    rdd->SubtestGradeScale->AddDelimitedStrings(u"A", u"0");
    rdd->ScaledScore->ScaledScoreName = rdd->SubtestScaledScore->ScaledScoreName = u"x";
    header->SetItem(u"_header_cols", u"5");
    header->SetItem(u"Own", u"1");
    rdd->Clear();
    EXPECT_EQ(rdd->FileName, u"/exam.rdd");
    EXPECT_EQ(rdd->ReportType, HTDReportTypeSurvey);
    EXPECT_EQ(rdd->TemplateName + rdd->Description + rdd->Notes, u"");
    EXPECT_FALSE(rdd->CustomHeader || rdd->oState);
    EXPECT_EQ(rdd->NumPages + rdd->Questions->Count() + rdd->Subtests->Count() + rdd->Versions->Question +
                  rdd->Versions->Sequences->Count() + rdd->Versions->Answers->Count() +
                  rdd->GradeScale->Count() + rdd->SubtestGradeScale->Count(),
              0);
    EXPECT_EQ(rdd->ScaledScore->ScaledScoreName + rdd->SubtestScaledScore->ScaledScoreName, u"");
    EXPECT_EQ(rdd->Header, header) << "the objects stay";
    EXPECT_EQ(header->Item(u"_HEADER_COLS").ToText(), u"3");
    EXPECT_EQ(header->Count(), 31);
}

TEST_F(Document, TheHeaderStartsInItsOwnOrder) {
    Text settings;
    const auto& entries = rdd->Header->Entries();
    for (const std::size_t place : {0U, 1U, 3U, 9U, 17U, 18U, 20U, 21U, 22U, 24U, 27U, 30U})
        settings += entries[place].key.ToText() + u"=" + entries[place].item.ToText() + u" ";
    EXPECT_EQ(settings, u"_R1C1_FLD_TEXT= _R1C2_FLD_TEXT= _R2C1_FLD_TEXT= _R1C1_LBL_TEXT= _R3C3_LBL_TEXT= "
                        u"_C1_IMG_PICTURE= _C3_IMG_PICTURE= _R1C1_HALIGN=0 _R2C1_HALIGN=0 _R1C2_HALIGN=2 "
                        u"_R1C3_HALIGN=1 _HEADER_COLS=3 ");
    EXPECT_TRUE(rdd->Header->Exists(u"_r1c1_fld_text"));
}

TEST_F(Document, AnEmptyHeaderIsAFailureOfItsFillingOnly) {
    rdd->Header = nullptr;
    rdd->TemplateName = u"x";
    EXPECT_EQ(FailureOf([&] { rdd->Clear(); }), 0);
    EXPECT_EQ(rdd->TemplateName, u"");
    EXPECT_EQ(Heard(),
              Said{"91 Object variable or With block variable not set @ basPublic.InitializeHeader"});
    rdd->ScaledScore = nullptr;
    EXPECT_EQ(FailureOf([&] { rdd->Clear(); }), 91);
}

TEST_F(Document, AHostServesAllDefinitionsOfTheThread) {
    const auto other = Make<RecordingHost>();
    EXPECT_TRUE(rdd->SetError(other));
    rdd->Clear();
    Make<clsHTDRDD>()->Questions->Remove(1);
    EXPECT_EQ(other->said, Said{"9 Subscript out of range @ clsHTDRDDQuestions.Remove"});
    EXPECT_FALSE(rdd->SetError(nullptr));
    EXPECT_EQ(rdd->Version(), u"9.1");
}

TEST_F(Document, AHandlerMayReleaseTheDefinitionDuringRead) {
    files.files[u"/exam.rdd"] = Unicode(u"[Report]\r\n\r\nend\r\n");
    Text seen;
    rdd->TemplateName = u"kept";
    rdd->AfterRead.Connect([&] {
        seen += rdd->TemplateName + rdd->FileName + u";";
        if (!rdd->FileName.empty()) rdd = nullptr;
    });
    rdd->AfterRead.Connect([&] { seen += u"again;"; });
    EXPECT_FALSE(rdd->Read(u"/none.rdd"));
    EXPECT_TRUE(rdd->Read(u"/exam.rdd"));
    EXPECT_EQ(seen, u"kept;again;/exam.rdd;again;");
    EXPECT_FALSE(rdd);
}

TEST_F(Document, ADefaultSubtestTakesQuestionsWithoutMemberships) {
    const auto first = Question(u"a", {});
    const auto second = Question(u"b", {false, true});
    EXPECT_TRUE(rdd->AddDefaultSubtest());
    EXPECT_EQ(rdd->Subtests->Item(1)->SubtestName, u"Overall");
    EXPECT_TRUE(first->Subtests->Includes(1));
    EXPECT_EQ(second->Subtests->AsArray().Items(), (std::vector<bool>{false, true}));
    const auto third = Question(u"c", {});
    EXPECT_TRUE(rdd->AddDefaultSubtest());
    EXPECT_EQ(rdd->Subtests->Count(), 1);
    EXPECT_EQ(third->Subtests->Count(), 0);
    rdd->Subtests = nullptr;
    EXPECT_FALSE(rdd->AddDefaultSubtest());
    EXPECT_EQ(
        Heard(),
        Said{"91 Object variable or With block variable not set @ clsHTDRDDSubtests.AddDefaultSubtest"});
}

TEST_F(Document, ExtraCreditCountsGradedAndSubjectiveQuestions) {
    EXPECT_FALSE(rdd->GetExtraCredit());
    Subtests({u"Overall", u"Algebra"});
    for (const TextView kinds :
         {u"extra graded", u"extra graded subjective", u"extra subjective", u"extra", u"graded"}) {
        const auto has = [kinds](TextView kind) { return kinds.find(kind) != TextView::npos; };
        const auto question = Question(kinds, {true, has(u"graded subjective")});
        question->ExtraCredit = has(u"extra");
        question->IncludeGrade = has(u"graded");
        question->SubjectiveField = has(u"subjective");
        question->CorrectPoints = 1.5;
        question->SubjectivePoints = 10;
    }
    EXPECT_EQ(ExtraCredit(1), u"3 13");
    EXPECT_EQ(ExtraCredit(u"2"), u"1 1.5");
    for (const Variant& none : {Variant(0), Variant(-1), Variant(3), Variant(2.1), Variant(1e300)})
        EXPECT_EQ(ExtraCredit(none), u"no 0 0");
    EXPECT_EQ(Heard(), Said());
    EXPECT_EQ(ExtraCredit(u"x"), u"no 0 0");
    EXPECT_EQ(ExtraCredit(.4), u"no 0 0") << "the position is 0, which is no membership";
    Question(u"short", {true});
    EXPECT_EQ(ExtraCredit(2), u"no 1 1.5") << "with what was found up to the failure";
    const std::string notSet = "91 Object variable or With block variable not set @ clsHTDRDD.GetExtraCredit";
    EXPECT_EQ(Heard(), (Said{"13 Type mismatch @ clsHTDRDD.GetExtraCredit", notSet, notSet}));
}

TEST_F(Document, QuestionsOfASubtestComeByPositionOrName) {
    Subtests({u"Overall", u"Algebra", u"ALGEBRA"});
    Question(u"a", {true, false, true});
    Question(u"b", {true, true, true});
    EXPECT_EQ(QuestionsOf(1), u"1;2;");
    EXPECT_EQ(QuestionsOf(std::int16_t{2}), u"2;");
    EXPECT_EQ(QuestionsOf(u"algebra"), u"2;") << "the first of a name";
    EXPECT_EQ(rdd->GetSubtestQuestions(u"overall")->Item(u"B"), 2);
    for (const std::int32_t position : {99, 0, -1}) EXPECT_EQ(QuestionsOf(position), u"");
    for (const Variant& none : {Variant(), Variant::Empty(), Variant::Null(), Variant(1.0), Variant(true),
                                Variant(u"1"), Variant(rdd)})
        EXPECT_EQ(QuestionsOf(none), u"none");
    EXPECT_EQ(Heard(), Said());
    Question(u"A", {true, false});
    EXPECT_EQ(QuestionsOf(1), u"none");
    EXPECT_EQ(QuestionsOf(3), u"none");
    EXPECT_EQ(QuestionsOf(2), u"2;");
    EXPECT_EQ(Heard(),
              (Said{"457 This key is already associated with an element of this collection @ "
                    "clsHTDRDD.GetSubtestQuestions",
                    "91 Object variable or With block variable not set @ clsHTDRDD.GetSubtestQuestions"}));
}

} // namespace
} // namespace htdrdd::test
