#include "htdrdd91/model/basPublicAnswers.h"
#include "htdrdd91/platform/encoding.h"
#include "htdrdd91/platform/thread_state.h"
#include "support/cases.h"
#include "support/random_definition.h"
#include "support/session.h"
#include "support/telling.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace htdrdd {
namespace {

using test::Each;

auto ListsOf(clsHTDRDDQuestion& q) {
    return std::array{&q.AnswerValues, &q.AnswerCodes, &q.CorrectAnswers, &q.CorrectCodes,
                      &q.CorrectAnswerPoints};
}

/// The whole content of a definition, with the number of items of each list.
Text All(const clsHTDRDD& rdd) {
    test::Telling all;
    all.Tell(rdd);
    all.Tell(rdd.Versions->Answers->Count());
    Each(*rdd.Questions, [&](auto& q) {
        for (const auto* const list : ListsOf(q)) all.Tell((*list)->Count(), (*list)->MaxLength);
    });
    return all.told;
}

/// The first difference of two texts, with the text before it; empty if they are equal.
std::string Difference(TextView a, TextView b) {
    const auto place = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
    const auto start = static_cast<std::size_t>(std::max<std::ptrdiff_t>(place - 60, 0));
    return a == b ? "" : ToUtf8(a.substr(start, 90)) + "\n and " + ToUtf8(b.substr(start, 90));
}

/// Changes a definition as saving does: copies the overall objective's scale and score to the document.
void TakeOverOverall(clsHTDRDD& rdd) {
    const auto overall = rdd.Subtests->Item(1);
    if (!overall) return;
    if (overall->GradeScale->Count() > 0) rdd.GradeScale = overall->GradeScale->Copy();
    if (overall->ScaledScore->IsValid(Ref(&rdd), false)) rdd.ScaledScore = overall->ScaledScore->Copy();
}

/// Changes a saved definition into the one that a reload returns, loss by loss. FileName and oState aren't
/// filed either, and numbers are filed with 15 digits, but `All` doesn't show these losses.
class Losses {
public:
    explicit Losses(clsHTDRDD& definition) : rdd(definition) {
        LoseScores();
        LoseVersions();
        for (std::int32_t l = rdd.Questions->Count(); l > 0; --l) {
            const auto question = rdd.Questions->Item(l);
            if (generic && !question->IncludeGrade && !question->SubjectiveField) {
                rdd.Questions->Remove(l);
                continue;
            }
            LoseAnswers(*question);
            LoseMemberships(*question);
        }
        Cut(rdd.TemplateName, rdd.Description, rdd.Notes);
        LoseHeaderKeys();
        LoseScaleNames(*rdd.GradeScale);
        LoseScaleNames(*rdd.SubtestGradeScale);
        Each(*rdd.Subtests, [this](auto& subtest) {
            LoseScaleNames(*subtest.GradeScale);
            Cut(subtest.SubtestName, subtest.Description);
        });
        Repair();
    }

    /// Whether a second save writes a different file; each reason sets it.
    bool seen = false;

private:
    /// Only scaled scores of objectives are filed, and only valid ones.
    void LoseScores() {
        std::vector<Ref<clsHTDRDDSubtest>> invalid; // all are checked before any text is cut
        for (std::int32_t l = 1; l <= rdd.Subtests->Count(); ++l)
            if (const auto subtest = rdd.Subtests->Item(l); !subtest->ScaledScore->IsValid(Ref(&rdd), l > 1))
                invalid.push_back(subtest);
        for (const auto& subtest : invalid) subtest->ScaledScore = Make<clsHTDRDDScaledScore>();
        Each(*rdd.Subtests, [this](auto& subtest) {
            CutTexts(*subtest.ScaledScore);
            CutTexts(*subtest.ScaledScore->DB); // enciphered texts keep their line breaks
        });
        rdd.ScaledScore->Clear();
        rdd.SubtestScaledScore->Clear();
    }
    /// Only scrambled versions have their sequences filed. A generic key has no versions.
    void LoseVersions() {
        if (generic) rdd.Versions = Make<clsHTDRDDVersions>();
        LoseItems(rdd.Versions->Answers);
        if (rdd.Versions->VType() == HTDVersionTypeSequence) return;
        seen |= rdd.Versions->Sequences->Count() > 1; // their number is filed
        rdd.Versions->Sequences->RemoveAll();
    }
    void LoseAnswers(clsHTDRDDQuestion& q) {
        const bool numeric = q.DataType == HTDReportDataTypeNumeric;
        const bool bounded = numeric && q.AnswerValues->Count() == 0; // other bounds aren't filed
        for (double* const bound : {&q.MinValue, &q.MaxValue}) {
            const Text filed = RegionalText(std::exchange(*bound, -999));
            if (bounded) *bound = LeadingNumber(filed); // reads up to a comma
            seen |= bounded && RegionalText(*bound) != filed;
        }
        if (generic) {
            if (q.AnswerValues->Count() > 0) { // the codes of the first key replace the answers
                const Text codes = basPublic::CorrectAnswerToIndices(q, 1);
                q.CorrectAnswers = Make<clsHTDRDDStrings>();
                q.CorrectAnswers->Add(codes);
            }
            q.AnswerValues = q.AnswerCodes = q.CorrectCodes = Make<clsHTDRDDStrings>();
            q.QuestionName = u"";
            q.IncludeTally = q.IDField = false;
        }
        if (!q.PartialCredit) q.CorrectAnswerPoints = Make<clsHTDRDDStrings>();
        for (auto* const list : ListsOf(q)) LoseItems(*list);
        seen |= numeric && !bounded && q.AnswerValues->Count() == 0; // now the bounds are filed
        const bool pointless = q.PartialCredit && q.CorrectAnswerPoints->Item(1).empty();
        seen |= pointless || q.MultiplesPermitted < 0;
        if (pointless) q.PartialCredit = false;
        q.MultiplesPermitted = static_cast<std::int16_t>(std::abs(q.MultiplesPermitted));
        Cut(q.BlankText, q.MultipleText, q.MissingText);
    }
    /// An item with tabs becomes several items. A single empty item and MaxLength are lost.
    void LoseItems(Ref<clsHTDRDDStrings>& list) {
        Text filed = list->AsString();
        Cut(filed);
        list = Make<clsHTDRDDStrings>();
        list->AddDelimitedString(filed);
    }
    /// Memberships beyond the objectives, weights without membership. All questions join the overall one.
    void LoseMemberships(clsHTDRDDQuestion& q) {
        const auto before = std::exchange(q.Subtests, Make<clsHTDRDDQuestionSubtests>());
        for (std::int32_t l = 1; l <= rdd.Subtests->Count(); ++l) {
            q.Subtests->Add(before->Includes(l) || l == 1);
            if (before->Includes(l)) q.Subtests->SetWeight(l, before->WeightOf(l));
            seen |= q.Subtests->Includes(l) != before->Includes(l);
        }
    }
    /// A key ends at "=", loses outer blanks, and ignores case. The default keys come first and are restored.
    void LoseHeaderKeys() {
        const auto before = std::exchange(rdd.Header, Make<clsHTDRDD>()->Header);
        const auto lines = [](const Dictionary& header) {
            std::vector<Text> all;
            for (const auto& [key, item] : header.Entries())
                all.push_back(Text(key.ToText()).append(u"=").append(item.ToText()));
            return all;
        };
        for (Text line : lines(*before)) {
            Cut(line);
            const std::size_t equals = line.find(u'=');
            rdd.Header->Item(Trimmed(line.substr(0, equals)), line.substr(equals + 1));
        }
        seen |= lines(*rdd.Header) != lines(*before);
    }
    /// Scales without rows lose their names. Decimal marks of start values become points.
    void LoseScaleNames(clsHTDRDDGradeScale& scale) {
        if (scale.Count() == 0) scale.ScaleName.clear();
        Cut(scale.ScaleName);
        Each(scale, [mark = Text(1, CurrentRegion().decimalMark)](auto& row) {
            row.StartValue = Replaced(row.StartValue, mark, u".");
        });
    }
    /// Adds the defaults. The document's scale goes to the overall objective and to the shared scale, and the
    /// shared scale to the other objectives.
    void Repair() {
        rdd.Versions->Sequences->AddDefault(rdd.Questions->Count());
        seen |= rdd.Subtests->Count() == 0;
        rdd.AddDefaultSubtest();
        const auto carry = [this](const clsHTDRDDGradeScale& scale, clsHTDRDDGradeScale& to) {
            if (to.Count() > 0 || scale.Count() == 0) return;
            seen = true;
            to.ScaleName = scale.ScaleName;
            to.AddArrays(scale.AsArray(false), scale.AsArray(true));
        };
        carry(*rdd.GradeScale, *rdd.SubtestGradeScale);
        for (std::int32_t l = 1; l <= rdd.Subtests->Count(); ++l)
            carry(l == 1 ? *rdd.GradeScale : *rdd.SubtestGradeScale, *rdd.Subtests->Item(l)->GradeScale);
    }
    /// A text ends at its first line break.
    void Cut(Text& text) {
        const std::size_t end = text.find(u'\n');
        if (end == Text::npos) return;
        seen = true;
        text.erase(end > 0 && text[end - 1] == u'\r' ? end - 1 : end);
    }
    template <class Class>
    void CutTexts(Class& object) {
        EachMember<Class>([&](auto row) {
            if constexpr (std::is_same_v<decltype(row.member), Text Class::*const>) Cut(object.*row.member);
        });
    }
    template <class... More>
    void Cut(Text& text, More&... more) {
        Cut(text);
        Cut(more...);
    }

    clsHTDRDD& rdd;
    const bool generic = rdd.ReportType == HTDReportTypeGenericGrade;
};

class RoundTrip : public test::Session {
protected:
    std::string Saved(clsHTDRDD& definition, bool bEncrypt = false) {
        EXPECT_TRUE(definition.Save(u"/exam.rdd", bEncrypt, false));
        return files.files[u"/exam.rdd"];
    }
    static Ref<clsHTDRDD> ReadBack() {
        auto definition = Make<clsHTDRDD>();
        EXPECT_TRUE(definition->Read(u"/exam.rdd"));
        return definition;
    }
};

TEST_F(RoundTrip, KeepsAllButTheLosses) {
    int settled = 0;
    for (std::uint64_t seed = 1; seed <= 10000 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        ThisThread().region = seed % 3 == 0 ? test::CommaRegion() : Region();
        const auto made = [seed] { return test::RandomDefinition(seed).Made(); };
        const auto expected = made();
        TakeOverOverall(*expected);
        const Text source = All(*expected);
        const Losses losses(*expected);
        const Text target = All(*expected);

        const auto saved = made();
        const std::string first = Saved(*saved);
        EXPECT_EQ(Difference(All(*saved), source), "");
        const auto read = ReadBack();
        EXPECT_EQ(Difference(All(*read), target), "");
        const std::string second = Saved(*read);
        EXPECT_EQ(second != first, losses.seen);
        EXPECT_TRUE(second == first || Saved(*ReadBack()) == second);
        settled += second == first ? 1 : 0;
        files.files.clear();

        if (seed % 8 == 0) {
            EXPECT_TRUE(Saved(*saved, true).starts_with("PK"));
            EXPECT_EQ(Difference(All(*ReadBack()), target), "");
        } else if (seed % 8 == 1) {
            const auto original = made();
            original->FileName = u"/was.rdd";
            original->oState = original->Header;
            const auto copy = original->Copy();
            ASSERT_TRUE(copy);
            EXPECT_EQ(Difference(All(*copy), target), "");
            EXPECT_EQ(Difference(All(*original), source), "");
            EXPECT_EQ(copy->FileName, u"/was.rdd");
            EXPECT_TRUE(original->FileName.starts_with(u"/tmp/"));
            EXPECT_FALSE(copy->oState);
            EXPECT_EQ(original->oState, Ref<Object>(original->Header));
            ASSERT_EQ(files.files.size(), 1U); // the archive's text, which stays
            EXPECT_NE(files.files.begin()->first, original->FileName);
            EXPECT_EQ(files.files.begin()->second, first);
        }
        files.files.clear();
        for (const std::string& line : Heard()) EXPECT_TRUE(line.starts_with("(silent) ")) << line;
    }
    EXPECT_GT(settled, 3000);
}

} // namespace
} // namespace htdrdd
