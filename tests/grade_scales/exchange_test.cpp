#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"
#include "htdrdd91/platform/encoding.h"
#include "support/cases.h"
#include "support/session.h"
#include "support/telling.h"

namespace htdrdd::test {
namespace {

class GradeScaleForms : public Session {
protected:
    /// The result of an import into a scale, the scale afterwards, and the reports.
    Text Imported(std::string bytes) {
        files.files[u"/scale.xml"] = std::move(bytes);
        const auto scale = Make<clsHTDRDDGradeScale>();
        scale->ScaleName = u"old";
        scale->AddDelimitedStrings(u"O", u"0");
        Text result = scale->Import(u"/scale.xml") ? u"true " : u"false ";
        result += RowsOf(*scale);
        for (const std::string& line : Heard()) result += u" [" + FromUtf8(line) + u"]";
        return result;
    }
    /// A document; { and } in the text stand for the tags of its root.
    static Text Document(TextView text) {
        return Replaced(Replaced(text, u"{", u"<HaldenTallyDesk FileType=\"GradeScale\">"), u"}",
                        u"</HaldenTallyDesk>");
    }
    Ref<clsHTDGradeScaleManager> manager = Make<clsHTDGradeScaleManager>();
};

TEST_F(GradeScaleForms, ExchangeFilesAreReadAsTheyAre) {
    CheckWords("grade_scale_files", [this](const Fields& row) { return Imported(ToUtf8(Document(row[0]))); });
    Text unicode = Document(u"{<GradeScale Name='\u00e9'/>}");
    EXPECT_EQ(Imported("\xEF\xBB\xBF" + ToUtf8(unicode)), u"true \u00e9:");
    EXPECT_EQ(Imported(Unicode(unicode)), u"true \u00e9:");
    std::string bigEndian = Unicode(unicode);
    for (std::size_t i = 0; i < bigEndian.size(); i += 2) std::swap(bigEndian[i], bigEndian[i + 1]);
    EXPECT_EQ(Imported(bigEndian), u"true \u00e9:");
    for (const std::string& bytes :
         {ToUtf8(unicode) + '\0' + "x", Unicode(unicode) + "x", Unicode(unicode + u"\xD800"),
          "\xFF\xFE" + ToUtf8(unicode), std::string()})
        EXPECT_EQ(Imported(bytes), u"false old: 0=O");
    const Text declared = u"<?xml version='1.0' encoding='windows-1252'?>" + unicode;
    EXPECT_EQ(Imported(ToUtf8(declared)), u"true \u00e9:");
    EXPECT_EQ(Imported(ToCodePage(declared)), u"false old: 0=O");
    Text attributes;
    for (int i = 0; i < 500; ++i) attributes += u" a" + DecimalText(i) + u"='>'";
    const auto among = [&](const Text& one) {
        return Imported(ToUtf8(Document(u"{<!--'--><GradeScale Name=''" + one + attributes + u"/>}")));
    };
    EXPECT_EQ(among(u"") + among(u" b='<'"), u"false old: 0=Ofalse old: 0=O");
    attributes.resize(attributes.size() - Text(u" a499='>'").size());
    EXPECT_EQ(among(u""), u"true :");
    const auto nested = [&](std::size_t depth) {
        const auto many = [&](TextView tag) { return Replaced(Text(depth, u'x'), u"x", tag); };
        return Imported(
            ToUtf8(Document(u"{<GradeScale>" + many(u"<a>") + many(u"</a>") + u"</GradeScale>}")));
    };
    EXPECT_EQ(nested(248) + nested(249), u"true : =false old: 0=O");
    const auto scale = Make<clsHTDRDDGradeScale>();
    EXPECT_FALSE(scale->Import(u"/none.xml") || scale->Import(u"/none/none.xml") || scale->Import(u"/tmp"));
    const ScopedRegion region(CommaRegion());
    EXPECT_EQ(Imported(ToUtf8(Document(u"{<GradeScale><i StartValue='.5'/></GradeScale>}"))), u"true : 0,5=");
}

TEST_F(GradeScaleForms, ExchangeFilesAreWrittenInOnePiece) {
    const auto scale = Make<clsHTDRDDGradeScale>();
    scale->ScaleName = u"<\u00e9 & \"co\">\r\n\t";
    scale->AddDelimitedStrings(u"A|\xD83D\xDE00", u"90%|", u"|");
    EXPECT_TRUE(scale->Export(u"/scale.xml"));
    EXPECT_EQ(files.files[u"/scale.xml"],
              "<HaldenTallyDesk FileType=\"GradeScale\" Version=\"9.1\">"
              "<GradeScale Name=\"&lt;\u00e9 &amp; &quot;co&quot;&gt;&#13;&#10;&#9;\">"
              "<ScaleItem Grade=\"A\" StartValue=\"90%\"/><ScaleItem Grade=\"\U0001F600\" StartValue=\"\"/>"
              "</GradeScale></HaldenTallyDesk>");
    EXPECT_EQ(files.files.size(), 1U) << "a temporary file is left";
    for (int n = 1, fired = 1; fired != 0; ++n) { // the n-th operation fails
        files.files = {{u"/scale.xml", "old"}};
        files.failingOperation = files.operations + n;
        const bool result = scale->Export(u"/scale.xml");
        fired = files.operations >= std::exchange(files.failingOperation, 0) ? 1 : 0;
        EXPECT_EQ(files.files[u"/scale.xml"] == "old", !result);
        EXPECT_TRUE(result ? Heard().size() < 2 : !Heard().empty());
        EXPECT_TRUE(fired == 0 || n < 20);
    }
    for (const Text& part : {Text(1'000'000, u'"'), Text(50, u'a')}) { // tens of megabytes
        const auto large = Make<clsHTDRDDGradeScale>();
        const auto row = Make<clsHTDRDDGradeScaleItem>();
        row->Grade = part;
        for (std::size_t left = 12'000'000 / part.size(); left > 0; --left) large->Add(row);
        const auto back = Make<clsHTDRDDGradeScale>();
        EXPECT_TRUE(large->Export(u"/scale.xml") && back->Import(u"/scale.xml"));
        EXPECT_TRUE(back->Count() == large->Count() && back->Item(back->Count())->Grade == part);
    }
    files.files = {{u"/scale.xml", "old"}};
    for (const Text& text :
         {Text(1, u'\0'), Text(u"\x1F"), Text(u"\xD800 "), Text(u"a\xDC00"), Text(u"\xFFFF")}) {
        scale->Item(1)->Grade = text;
        EXPECT_FALSE(scale->Export(u"/scale.xml"));
        EXPECT_EQ(Heard(), Said{kArgument + "clsHTDRDDGradeScale.Export"});
    }
    EXPECT_EQ(files.files, (std::map<Text, std::string>{{u"/scale.xml", "old"}}));
}

/// A clip, the scale read from it, and the clip that this scale writes.
TEST_F(GradeScaleForms, SpreadsheetsPasteRows) {
    CheckWords("grade_scale_clips", [this](const Fields& row) {
        Text told = InBothRegions([&] {
            const auto scale = manager->ClipToScale(u"n", row[0]);
            return scale ? RowsOf(*scale) + u" " + manager->ScaleToClip(scale) : u"none";
        });
        for (const std::string& line : Heard()) told += u" [" + FromUtf8(line) + u"]";
        return told;
    });
    const auto scale = Make<clsHTDRDDGradeScale>();
    scale->AddDelimitedStrings(u"A,B", u"1E999,0", u",");
    EXPECT_EQ(manager->ScaleToClip(scale), u"");
    EXPECT_EQ(manager->ScaleToClip(nullptr), u"");
    const std::string member = "clsHTDGradeScaleManager.ScaleToClip";
    EXPECT_EQ(Heard(), (Said{kOverflow + member, kNotSet + member}));
}

TEST_F(GradeScaleForms, ScoresAreDividedAndMultiplied) {
    EXPECT_EQ(manager->CalcPercentScore(45, 60) + manager->CalcTotalScore(75, 60), 120.);
    EXPECT_EQ(manager->CalcPercentScore(1, 3), 1. / 3 * 100);
    EXPECT_EQ(manager->CalcTotalScore(7, 3), 7. / 100 * 3);
    EXPECT_EQ(manager->CalcPercentScore(1, 0), 0);
    for (const double many : {0., 1e307}) EXPECT_EQ(manager->CalcPercentScore(many, many / 1e307), 0);
    EXPECT_EQ(manager->CalcTotalScore(1e300, 1e300), 0);
    const std::string member = "clsHTDGradeScaleManager.CalcPercentScore";
    EXPECT_EQ(Heard(), (Said{"11 Division by zero @ " + member, kOverflow + member, kOverflow + member,
                             kOverflow + "clsHTDGradeScaleManager.CalcTotalScore"}));
}

TEST_F(GradeScaleForms, PossiblePointsAreThoseOfALearningObjective) {
    EXPECT_EQ(manager->CalcTotalPossibleScore(rdd), 0);
    for (const TextView name : {u"Overall", u"Other"}) {
        const auto subtest = Make<clsHTDRDDSubtest>();
        subtest->SubtestName = name;
        rdd->Subtests->Add(subtest);
    }
    for (std::int32_t l = 1; l <= 6; ++l) { // points of 1, 10, 100, ... if graded, else double
        const auto question = Make<clsHTDRDDQuestion>();
        question->CorrectPoints = std::pow(10, l - 1);
        question->SubjectivePoints = 2 * question->CorrectPoints;
        question->IncludeGrade = l != 2 && l != 3;
        question->SubjectiveField = l == 2 || l == 4;
        question->ExtraCredit = question->PartialCredit = l == 5;
        for (std::int32_t objective = 1; objective <= (l == 6 ? 1 : 2); ++objective)
            question->Subtests->Add(objective == 1 ? l != 1 : l % 2 == 1);
        rdd->Questions->Add(question);
    }
    EXPECT_EQ(manager->CalcTotalPossibleScore(rdd, 1), 111020);
    EXPECT_EQ(manager->CalcTotalPossibleScore(rdd, 2), 110001) << "the last one has no entry for it";
    for (const int position : {0, -1, 3, 32767})
        EXPECT_EQ(manager->CalcTotalPossibleScore(rdd, static_cast<std::int16_t>(position)), 111020);
    EXPECT_EQ(manager->CalcTotalPossibleScore(nullptr), 0);
    EXPECT_EQ(Heard(), Said{kNotSet + "clsHTDGradeScaleManager.CalcTotalPossibleScore"});
}

/// n of d questions as a percentage, graded at 0 to 3 places, compared with integer arithmetic.
TEST_F(GradeScaleForms, ScoresOnABoundaryGetTheGradeThatStartsThere) {
    const auto scale = Make<clsHTDRDDGradeScale>();
    scale->AddDelimitedStrings(u"above,at,below", u",,", u",");
    for (std::int64_t d = 1; d <= 200; ++d) {
        for (std::int64_t n = 0; n <= d; ++n) {
            const double percent = manager->CalcPercentScore(static_cast<double>(n), static_cast<double>(d));
            for (std::int64_t places = 0, one = 1; places <= 3; ++places, one *= 10) {
                const std::int64_t rounded = (2 * 100 * n * one + d) / (2 * d); // half away from 0
                const auto text = [&](std::int64_t units) {
                    return DecimalText(units / one) + u"." + DecimalText(one + units % one).substr(1);
                };
                scale->Item(1)->StartValue = text(rounded + 1);
                scale->Item(2)->StartValue = text(rounded);
                ASSERT_EQ(scale->CalculateGrade(percent, static_cast<std::int16_t>(places)), u"at")
                    << n << " of " << d << " at " << places;
            }
        }
    }
}

} // namespace
} // namespace htdrdd::test
