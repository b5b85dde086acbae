#include "htdrdd91/grade_scales/clsHTDRDDGradeScale.h"
#include "htdrdd91/platform/encoding.h"
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
    const auto scale = Scale(u"A|B|C|F", u"90.0|80%| 70 |x");
    Check({u"89.9995 -> 3 -> A / A", u"89.9994 -> 3 -> B / B", u"80 -> 3 -> B / B", u"-5 -> 3 -> F / F",
           u"89.5 -> 0 -> A / A", u"89.4 -> 0 -> B / B", u"79.95 -> 1 -> B / B", u"1e300 -> 3 -> A / A"},
          [&](const Fields& row) {
              const auto places = Rounded<std::int16_t>(LeadingNumber(row[1]));
              return InBothRegions([&] { return scale->CalculateGrade(LeadingNumber(row[0]), places); });
          });
}

/// Grades, start values, then the report and the row that Validate writes.
TEST_F(GradeScales, AreHeldToTheirRulesInOrder) {
    CheckWords("grade_scale", [&](const Fields& row) {
        std::int32_t item = -1;
        host->whenHeard = [&] { EXPECT_EQ(item, -1) << "written behind the complaint"; };
        const bool valid = Scale(row[0], row[1])->Validate(true, &item);
        const Said heard = Heard();
        EXPECT_EQ(heard.size(), valid ? 0U : 1U);
        return FromUtf8(valid ? "" : heard[0]) + u" " + DecimalText(item);
    });
    host->whenHeard = nullptr;
    EXPECT_FALSE(Scale(u"A", u"1")->Validate(false));
    EXPECT_TRUE(Heard()[0].starts_with("(silent) Invalid Range:"));
}

TEST_F(GradeScales, TheFirstRowThatFitsWinsAndTheLastTakesTheRest) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const auto empty = Make<clsHTDRDDGradeScale>();
    EXPECT_EQ(Scale(u"F|A", u"0|90")->CalculateGrade(95), u"F");
    EXPECT_EQ(Scale(u"A|B", u"90|80")->CalculateGrade(10), u"B");
    EXPECT_EQ(Scale(u"A|F", u"90|0")->CalculateGrade(std::numeric_limits<double>::max()), u"F")
        << "this is meant: its 15 digits are no double";
    EXPECT_EQ(empty->CalculateGrade(50) + empty->CalculateGrade(kInfinity), u"");
    EXPECT_EQ(Heard(), Said());
    EXPECT_EQ(Scale(u"A", u"0")->CalculateGrade(50, -1) + empty->CalculateGrade(50, -1), u"");
    EXPECT_EQ(Scale(u"A", u"0")->CalculateGrade(kInfinity), u"");
    const std::string member = "clsHTDRDDGradeScale.CalculateGrade";
    EXPECT_EQ(Heard(), (Said{kArgument + member, kArgument + member, kOverflow + member}));
}

TEST_F(GradeScales, RowsAreAddedInPairsAndCopied) {
    const auto scale = Scale(u"A| B", u"90|80 ");
    EXPECT_FALSE(scale->AddDelimitedStrings(u"C", u"1|0", u"|") ||
                 scale->AddArrays(Array<Text>({u"C"}, 1), Array<Text>({u"1"}, 0)) ||
                 scale->AddArrays(Array<Text>(), Array<Text>()));
    EXPECT_TRUE(scale->AddDelimitedStrings(u"", u""));
    EXPECT_TRUE(scale->AddArrays(Array<Text>({u"C"}, 5), Array<Text>({u"0"}, 5)));
    EXPECT_EQ(scale->AsString() + u"; " + scale->AsString(true, u"|"), u"A\t B\tC; 90|80 |0");
    EXPECT_EQ(scale->AsArray(true, 0).At(2), u"0");
    scale->Add(Make<clsHTDRDDGradeScaleItem>(), u"key");
    const auto copy = scale->Copy();
    copy->Item(4)->Grade = u"E";
    EXPECT_EQ(copy->AsString() + scale->Item(u"KEY")->Grade, u"A\t B\tC\tE") << "rows of its own";
    EXPECT_FALSE(copy->Exists(u"key"));
    scale->Add(nullptr);
    EXPECT_EQ(FailureOf([&] { return scale->Copy(); }), 91);
}

} // namespace
} // namespace htdrdd::test
