#include "support/cases.h"
#include "support/session.h"

#include <limits>

namespace htdrdd::test {
namespace {

class GradeScales : public Session {
protected:
    static Ref<clsHTDRDDGradeScale> Scale(TextView grades, TextView startValues) {
        auto scale = Make<clsHTDRDDGradeScale>();
        EXPECT_TRUE(scale->AddDelimitedStrings(grades, startValues, u"|"));
        return scale;
    }
};

/// Score, decimal places, grade.
TEST_F(GradeScales, AScoreIsRoundedBeforeItIsCompared) {
    const auto scale = Scale(u"A|B|C|F", u"90|80|70|0");
    for (const TextView row :
         {u"90 -> 3 -> A", u"89.9996 -> 3 -> A", u"89.9995 -> 3 -> A", u"89.9994 -> 3 -> B", u"80 -> 3 -> B",
          u"0 -> 3 -> F", u"-5 -> 3 -> F", u"-999 -> 3 -> F", u"89.5 -> 0 -> A", u"89.4 -> 0 -> B",
          u"79.95 -> 1 -> B", u"1e300 -> 3 -> A"}) {
        const double score = LeadingNumber(row);
        const auto places = Rounded<std::int16_t>(LeadingNumber(Fields(row)[1]));
        const ScopedRegion point(PointRegion());
        EXPECT_EQ(scale->CalculateGrade(score, places), Fields(row)[2]) << ToUtf8(row);
        const ScopedRegion comma(CommaRegion());
        EXPECT_EQ(scale->CalculateGrade(score, places), Fields(row)[2]) << ToUtf8(row);
    }
}

/// Start value, its number where the mark is a point, and where it is a comma.
TEST_F(GradeScales, StartValuesAreReadInTheirSeveralForms) {
    for (const TextView row : {u"90% -> 90 -> 90", u"89.5 -> 89.5 -> 89.5", u"89,5 -> 895 -> 89.5",
                               u"abc -> 0 -> 0", u" -> 0 -> 0"}) {
        const auto scale = Scale(u"pass|fail", Fields(row)[0] + u"|0");
        const auto grades = [&](TextView start) {
            return scale->CalculateGrade(LeadingNumber(start)) +
                   scale->CalculateGrade(LeadingNumber(start) - .001);
        };
        const ScopedRegion point(PointRegion());
        EXPECT_EQ(grades(Fields(row)[1]), u"passfail") << ToUtf8(row);
        const ScopedRegion comma(CommaRegion());
        EXPECT_EQ(grades(Fields(row)[2]), u"passfail") << ToUtf8(row);
    }
}

TEST_F(GradeScales, TheFirstRowThatFitsWinsAndTheLastTakesTheRest) {
    EXPECT_EQ(Scale(u"F|A", u"0|90")->CalculateGrade(95), u"F");
    EXPECT_EQ(Scale(u"A|B", u"90|80")->CalculateGrade(10), u"B");
    EXPECT_EQ(Make<clsHTDRDDGradeScale>()->CalculateGrade(50), u"");
    EXPECT_EQ(Heard(), Said());
    EXPECT_EQ(Scale(u"A", u"0")->CalculateGrade(50, -1), u"");
    EXPECT_EQ(Scale(u"A", u"0")->CalculateGrade(std::numeric_limits<double>::infinity()), u"");
    EXPECT_EQ(Heard(), (Said{"5 Invalid procedure call or argument @ clsHTDRDDGradeScale.CalculateGrade",
                             "6 Overflow @ clsHTDRDDGradeScale.CalculateGrade"}));
}

TEST_F(GradeScales, RowsAreAddedInPairs) {
    const auto scale = Scale(u"A| B", u"90|80 ");
    EXPECT_FALSE(scale->AddDelimitedStrings(u"C", u"1|0", u"|"));
    EXPECT_FALSE(scale->AddArrays(Array<Text>({u"C"}, 1), Array<Text>({u"1", u"0"}, 0)));
    EXPECT_FALSE(scale->AddArrays(Array<Text>(), Array<Text>()));
    EXPECT_TRUE(scale->AddDelimitedStrings(u"", u""));
    EXPECT_TRUE(scale->AddArrays(Array<Text>({u"C"}, 5), Array<Text>({u"0"}, 5)));
    EXPECT_EQ(scale->AsString(), u"A\t B\tC");
    EXPECT_EQ(scale->AsString(true, u"; "), u"90; 80 ; 0");
    EXPECT_EQ(scale->AsArray(true, 0).At(2), u"0");
}

TEST_F(GradeScales, ACopyHasRowsOfItsOwn) {
    const auto scale = Make<clsHTDRDDGradeScale>();
    scale->ScaleName = u"Letters";
    EXPECT_EQ(scale->Copy()->ScaleName, u"Letters") << "of an empty scale too";
    EXPECT_EQ(scale->AsString(), u"");
    scale->Add(Make<clsHTDRDDGradeScaleItem>(), u"key");
    const auto copy = scale->Copy();
    copy->Item(1)->Grade = u"A";
    EXPECT_EQ(scale->Item(u"KEY")->Grade, u"");
    EXPECT_FALSE(copy->Exists(u"key"));
    EXPECT_EQ(FailureOf([&] { scale->Add(Make<clsHTDRDDGradeScaleItem>(), u"Key"); }), 457);
    scale->Add(nullptr);
    EXPECT_FALSE(scale->Item(2));
    EXPECT_EQ(FailureOf([&] { return scale->Copy(); }), 91);
}

} // namespace
} // namespace htdrdd::test
