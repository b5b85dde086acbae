#include "htdrdd91/base/number.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

class SubtestRule : public Session {
protected:
    /// The result and the position written for a type of report and with more lines for the second question.
    std::string Judge(int type, TextView flags) {
        EXPECT_TRUE(Read(Text(u"[Report]\nNumQuestions=2\nNumSubtests=2\nType=")
                             .append(DecimalText(type))
                             .append(u"\n\n[Subtest]\nSubtestName=Overall\n\n[Subtest]\n\n[Question]\n"
                                     u"SubtestNumber=1\nIncludeGrade=1\nIncludeTally=1\nSubjectiveField=1\n\n"
                                     u"[Question]\nSubtestNumber=1\t2\n")
                             .append(flags)));
        std::int32_t subtest = -1;
        const bool valid = rdd->ValidateSubtests(&subtest);
        return (valid ? "true " : "false ") + std::to_string(subtest);
    }
};

TEST_F(SubtestRule, DependsOnTheTypeOfReport) {
    const auto judge = [&](TextView flag) { // in a test, a survey and a generic key
        return Judge(1, flag) + "; " + Judge(2, flag) + "; " + Judge(3, flag);
    };
    EXPECT_EQ(judge(u"IncludeGrade=1"), "true -1; false 2; true -1");
    EXPECT_EQ(judge(u"IncludeTally=1"), "false 2; true -1; false 2");
    EXPECT_EQ(judge(u"SubjectiveField=1"), "true -1; false 2; false 2");
    rdd->Questions->RemoveAll();
    std::int32_t subtest = -1;
    EXPECT_FALSE(rdd->ValidateSubtests(&subtest));
    EXPECT_EQ(subtest, 1);
    rdd->Subtests->RemoveAll();
    EXPECT_TRUE(rdd->ValidateSubtests());
}

TEST_F(SubtestRule, AsksForMembershipOnlyWhereAQuestionCounts) {
    EXPECT_EQ(Judge(1, u"IncludeGrade=1"), "true -1");
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
