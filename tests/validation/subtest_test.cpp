#include "support/session.h"

namespace htdrdd::test {
namespace {

class SubtestRule : public Session {
protected:
    /// Type of report, then the flags of a question: position of the objective that is written.
    std::string Judge(HTDReportType type, TextView flags) {
        rdd->Clear();
        rdd->ReportType = type;
        for (const TextView name : {u"Overall", u"Second"}) {
            auto subtest = Make<clsHTDRDDSubtest>();
            subtest->SubtestName = name;
            rdd->Subtests->Add(std::move(subtest));
        }
        for (std::int32_t l = 1; l <= 2; ++l) {
            auto question = Make<clsHTDRDDQuestion>();
            const auto has = [&](char16_t flag) { return l == 1 || flags.find(flag) != TextView::npos; };
            question->IncludeGrade = has(u'G');
            question->IncludeTally = has(u'T');
            question->SubjectiveField = has(u'S');
            question->Subtests->Add(true);
            question->Subtests->Add(l == 2);
            rdd->Questions->Add(std::move(question));
        }
        std::int32_t subtest = -1;
        const bool valid = rdd->ValidateSubtests(&subtest);
        return (valid ? "true " : "false ") + std::to_string(subtest);
    }
};

TEST_F(SubtestRule, DependsOnTheTypeOfReport) {
    const auto judge = [&](TextView flags) {
        std::string verdicts;
        for (const auto type : {HTDReportTypeGrade, HTDReportTypeSurvey, HTDReportTypeGenericGrade})
            verdicts += Judge(type, flags) + "; ";
        return verdicts;
    };
    EXPECT_EQ(judge(u"G"), "true -1; false 2; true -1; ");
    EXPECT_EQ(judge(u"T"), "false 2; true -1; false 2; ");
    EXPECT_EQ(judge(u"S"), "true -1; false 2; false 2; ");
    rdd->Questions->RemoveAll();
    std::int32_t subtest = -1;
    EXPECT_FALSE(rdd->ValidateSubtests(&subtest));
    EXPECT_EQ(subtest, 1);
    rdd->Subtests->RemoveAll();
    EXPECT_TRUE(rdd->ValidateSubtests());
}

TEST_F(SubtestRule, AsksForMembershipOnlyWhereAQuestionCounts) {
    EXPECT_EQ(Judge(HTDReportTypeGrade, u"G"), "true -1");
    const auto memberships = rdd->Questions->Item(1)->Subtests;
    memberships->Item(2, nullptr);
    EXPECT_FALSE(rdd->ValidateSubtests());
    memberships->Remove(2);
    EXPECT_FALSE(rdd->ValidateSubtests());
    const std::string notSet = kNotSet + "frmGradeWizard.ValidateSubtests";
    EXPECT_EQ(Heard(), (Said{notSet, notSet}));
    rdd->Questions->Item(1)->IncludeGrade = rdd->Questions->Item(1)->SubjectiveField = false;
    EXPECT_TRUE(rdd->ValidateSubtests());
}

} // namespace
} // namespace htdrdd::test
