#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/thread_state.h"
#include "htdrdd91/scaled_scores/clsHTDScaledScoreManager.h"
#include "htdrdd91/scaled_scores/scaled_score_members.h"
#include "support/cases.h"
#include "support/random_definition.h"
#include "support/session.h"
#include "support/telling.h"

#include <algorithm>

namespace htdrdd::test {
namespace {

/// Writes random grade scales and scaled scores in each of their forms, reads them back and compares, except
/// for the known losses of the form.
class FormsRoundTrip : public Session {
protected:
    /// Runs a check on 10,000 learning objectives, in both regions.
    template <class Check>
    void Each(Check check) {
        std::int32_t left = 10'000;
        for (std::uint64_t seed = 1; left > 0 && !HasFailure(); ++seed) {
            SCOPED_TRACE(seed);
            ThisThread().region = seed % 3 == 0 ? CommaRegion() : Region();
            const auto made = RandomDefinition(seed).Made();
            test::Each(*made->Subtests, [&](auto& subtest) { check(subtest, seed); });
            left -= made->Subtests->Count();
        }
    }
    /// XML holds all texts used here, except for NUL and unpaired surrogates.
    static Text FitForXml(TextView text) {
        return FromUtf8(ToUtf8(Replaced(text, TextView(u"\0", 1), u"\uFFFD")));
    }
    /// Exports a record; `fits` tells whether XML can hold its texts.
    template <class Record>
    void Export(const Record& record, bool fits) {
        EXPECT_EQ(record.Export(u"/file.xml"), fits);
        EXPECT_EQ(Heard(), fits ? Said() : Said{kArgument + ToUtf8(record.ClassName()) + ".Export"});
    }
    /// Changes the members of a scaled score that aren't enciphered, as texts.
    template <class Change>
    static void EachText(clsHTDRDDScaledScore& score, Change change) {
        for (const ScaledScoreRow& row : kScaledScoreMembers) {
            Text value;
            row.append(value, score, Where::current());
            if (row.form == ScaledScoreRow::Form::Plain) row.put(score, change(value), Where::current());
        }
    }
    /// A copy of a scale with the start values that a form writes.
    template <class Written>
    static Ref<clsHTDRDDGradeScale> Expected(const clsHTDRDDGradeScale& scale, Written written) {
        const auto expected = scale.Copy();
        test::Each(*expected, [&](auto& row) { row.StartValue = written(LeadingNumber(row.StartValue)); });
        return expected;
    }
};

/// Start values become plain numbers of the region.
TEST_F(FormsRoundTrip, OfGradeScaleExchangeFiles) {
    Each([this](const clsHTDRDDSubtest& subtest, std::uint64_t /*seed*/) {
        clsHTDRDDGradeScale& scale = *subtest.GradeScale;
        bool fits = true;
        const auto make = [&](Text& text) { fits &= std::exchange(text, FitForXml(text)) == text; };
        const auto before = scale.Copy();
        make(scale.ScaleName);
        test::Each(scale, [&](auto& row) { make(row.Grade); });
        Export(*before, fits);
        Export(scale, true);
        const auto back = Make<clsHTDRDDGradeScale>();
        EXPECT_TRUE(back->Import(u"/file.xml"));
        EXPECT_EQ(Told(*back), Told(*Expected(scale, RegionalText)));
    });
}

/// DB->Valid isn't stored, and texts lose their outer blanks. A text that contains the delimiter is lost.
TEST_F(FormsRoundTrip, OfScaledScoreTextsAndLibraries) {
    Each([](const clsHTDRDDSubtest& subtest, std::uint64_t seed) {
        const clsHTDRDDScaledScore& score = *subtest.ScaledScore;
        EachText(*subtest.ScaledScore, [](TextView text) { return Replaced(text, u"\t", u"\u2003"); });
        const auto expected = score.Copy();
        EachText(*expected, Trimmed);
        expected->DB->Valid = true;
        const TextView delimiter = seed % 2 == 0 ? u"\t" : u"; ;";
        const auto back = Make<clsHTDRDDScaledScore>();
        EXPECT_TRUE(back->FromString(score.ToString(delimiter), delimiter));
        EXPECT_EQ(Told(*back), Told(*expected));
        const auto library = Make<clsHTDScaledScoreManager>();
        Text key;
        library->Add(key, subtest.ScaledScore);
        EXPECT_TRUE(library->LoadFromString(library->SaveToString()));
        EXPECT_EQ(Told(*library->Item(expected->ScaledScoreName)), Told(*expected));
    });
}

/// DB->Valid isn't stored.
TEST_F(FormsRoundTrip, OfScaledScoreExchangeFiles) {
    Each([this](const clsHTDRDDSubtest& subtest, std::uint64_t /*seed*/) {
        const clsHTDRDDScaledScore& score = *subtest.ScaledScore;
        const auto expected = score.Copy();
        EachText(*expected, FitForXml);
        Export(score, Told(*expected) == Told(score));
        Export(*expected, true);
        expected->DB->Valid = true;
        const auto back = Make<clsHTDRDDScaledScore>();
        EXPECT_TRUE(back->Import(u"/file.xml"));
        EXPECT_EQ(Told(*back), Told(*expected));
    });
}

} // namespace
} // namespace htdrdd::test
