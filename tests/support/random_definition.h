/// Random definitions.
#pragma once

#include "htdrdd91/definition_file/report_members.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "htdrdd91/model/model_members.h"
#include "htdrdd91/scaled_scores/scaled_score_list.h"

#include <cmath>
#include <initializer_list>
#include <random>

namespace htdrdd::test {

/// Creates a definition through the members that hosts use; the same seed creates the same definition. Its
/// file can be read: each restriction for this purpose has its reason beside it. Half of the definitions are
/// tame, without most of the content that a second save would change.
class RandomDefinition {
public:
    explicit RandomDefinition(std::uint64_t seed) : random_(seed) {}

    Ref<clsHTDRDD> Made() {
        FillAll(*rdd_);
        rdd_->ReportType = Enum<HTDReportType>({1, 1, 1, 2, 2, 3, 3, 0, -32768, 32767}); // read as 16 bits
        generic_ = rdd_->ReportType == HTDReportTypeGenericGrade;
        if (Rarely()) rdd_->Header = Make<Dictionary>(); // empty, and its keys are case-sensitive
        // [Report] can't be the last section, so a generic key needs a header. Keys with "[" are sections.
        for (std::int32_t left = Below(4) + (generic_ ? 1 : 0); left > 0; --left) {
            const TextView key = OneOf<TextView>({u"OWN", u"own", u"_header_cols", u"_R1C1_FLD_TEXT"});
            const TextView odd = OneOf<TextView>({u" a ", u"A", u"a=b", u"", u"\t", u" _r1c1_fld_text"});
            rdd_->Header->Item(Rarely() ? odd : key, OddText());
        }
        for (std::int32_t left = wild_ ? Below(4) : 1 + Below(3); left > 0; --left) {
            const auto subtest = Make<clsHTDRDDSubtest>();
            rdd_->Subtests->Add(subtest);
            static_assert(kMemberCount<clsHTDRDDSubtest> == 5); // the name first: scaled scores search for it
            Fill(subtest->SubtestName, subtest->Description, subtest->Benchmark, *subtest->GradeScale,
                 *subtest->ScaledScore);
        }
        Fill(*rdd_->GradeScale, *rdd_->SubtestGradeScale, *rdd_->ScaledScore, *rdd_->SubtestScaledScore);
        for (std::int32_t left = Below(7); left > 0; --left) AddQuestion();
        FillVersions();
        return rdd_;
    }

private:
    std::int32_t Below(std::int32_t limit) {
        return static_cast<std::int32_t>(random_() % static_cast<unsigned>(limit));
    }
    bool Rarely() { return Below(4) == 0 && wild_; }
    template <class T>
    T OneOf(std::initializer_list<T> values) {
        return values.begin()[Below(static_cast<std::int32_t>(values.size()))];
    }
    template <class T>
    T Enum(std::initializer_list<int> values) {
        return static_cast<T>(OneOf(values));
    }
    /// A text without tabs and line breaks, for lists whose items are counted.
    Text OddLine() {
        static constexpr TextView kNul(u"\0", 1);
        Text text;
        for (std::int32_t left = Below(4); left > 0; --left)
            text += OneOf<TextView>(
                {u"A",      u"b,",         u"(B,a)",        u"2.5",  u" ",       u"=",      u"[",
                 u"]",      u"[Question]", u"0,5",          u"é",    u"\u0130ß", u"\u65E5", u"\xD83D\xDE00",
                 u"\xD800", u"\xDC00",     u"\x80\x85\x9F", u"\xA0", u"\r",      u"\uFEFF", kNul});
        return text;
    }
    /// A line break starts a new line, which must not be blank, begin with "[" or contain "=".
    Text OddText() {
        Text text = OddLine();
        if (Below(4) == 0) text.append(u"\t").append(OddLine());
        if (wild_ && Below(50) == 0) text += OneOf<TextView>({u"\nstray", u"\r\nstray", u"\r\r\nstray"});
        return text;
    }
    /// Not infinity, and no number that rounding to 15 digits turns into infinity.
    double Number() {
        if (Below(2) == 0) return std::ldexp(Below(2001) - 1000, Below(1900) - 1000);
        return OneOf({.5, 1 / 3., -2 / 3., .1 + .2, 1e15, -1e-7, 123456789012345678., 1.7e308, 5e-324, -999.,
                      0., -0.});
    }

    template <class... Members>
    void Fill(Members&... members) {
        (FillOne(members), ...);
    }
    template <class Class>
    void FillAll(Class& object) {
        EachMember<Class>([&](auto row) { FillOne(object.*row.member); });
    }
    void FillOne(bool& flag) { flag = Below(2) == 0; }
    void FillOne(double& number) { number = Number(); }
    void FillOne(std::int16_t& number) { number = Enum<std::int16_t>({-1, 0, 7, 32767, -32768}); }
    template <class Enumeration>
    requires std::is_enum_v<Enumeration>
    void FillOne(Enumeration& value) { value = Enum<Enumeration>({0, 1, 2}); }
    void FillOne(Ref<clsHTDRDDScaledScoreDB>& db) { FillAll(*db); }
    void FillOne(Ref<clsHTDRDDQuestionSubtests>& /*memberships*/) {} // AddQuestion sets their number
    void FillOne(std::int32_t& number) { number = OneOf({0, 1, -999, 2147483647, -2147483647 - 1}); }
    template <class AnyText>
    void FillOne(AnyText& text) {
        text = TextView(OddText());
    }
    void FillOne(Ref<clsHTDRDDStrings>& list) {
        for (std::int32_t left = Below(4); left > 0; --left)
            list->Add(Below(2) == 0 ? OneOf<TextView>({u"A", u"B", u"2", u""}) : OddText());
        list->MaxLength = OneOf({0, 3}); // set last: earlier, it could leave a bare line break
    }
    void FillOne(clsHTDRDDGradeScale& scale) {
        Fill(scale.ScaleName);
        const std::int32_t rows = (wild_ ? Below(2) == 0 : everyScale_) ? 1 + Below(3) : 0;
        for (std::int32_t row = 0; row < rows; ++row) {
            const auto item = Make<clsHTDRDDGradeScaleItem>();
            scale.Add(item);
            item->Grade = OddLine();
            item->StartValue = OneOf<TextView>({u"90", u"89,5", u"59.5", u"5%", u""});
            if (rows == 1) item->Grade = item->StartValue = u"0,"; // a single empty item would be no item
        }
    }
    /// Half of the scaled scores are valid, most of the time.
    void FillOne(clsHTDRDDScaledScore& score) {
        clsHTDRDDScaledScoreDB& db = *score.DB;
        FillAll(score);
        score.ScaledScoreValues = HTDScaledScoreValuesNone;
        if (Below(2) == 0) return;
        const auto overall = rdd_->Subtests->Item(1);
        score.LearningObjectivePrimary = overall ? overall->SubtestName : OddText();
        score.ScaledScoreValues = Enum<HTDScaledScoreValues>({1, 2, 3});
        score.ScaledScoreCriteriaPrimary = Enum<HTDScaledScoreCriteria>({1, 1, 1, 2, 4});
        score.ScaledScoreCriteriaSecondary = Enum<HTDScaledScoreCriteria>({0, 0, 0, 4, -7});
        score.Precision = Enum<std::int16_t>({-1, 0, 3, 32767, -32768});
        for (Text* const column : {&db.MinFieldPrimary, &db.MaxFieldPrimary, &db.ScoreField})
            column->insert(0, u"f");
        db.DBType = Enum<std::int16_t>({0, 1, 32767});
        db.Connect = u" DSN=norms;\r\n=" + OddText();
        db.Valid = Below(8) != 0;
    }
    void AddQuestion() {
        const auto made = Make<clsHTDRDDQuestion>();
        clsHTDRDDQuestion& q = *made;
        FillAll(q);
        q.Topic = u"line\r\nends\n" + OddText();
        q.DataType = Enum<HTDReportDataType>({0, 1, 1, 1, 2, 2, 32767, -32768}); // read as 16 bits,
        q.MultiplesPermitted = Enum<std::int16_t>({0, 1, 32767});
        if (Rarely()) q.MultiplesPermitted = Enum<std::int16_t>({-1, -32767}); // and as an absolute value
        if (!wild_ && q.CorrectAnswerPoints->Item(1).empty()) q.PartialCredit = false;
        if (generic_ && q.IncludeGrade) q.SubjectiveField = false; // else it would be counted twice
        for (std::int32_t l = rdd_->Subtests->Count() + (Rarely() ? 1 : 0); l > 0; --l) {
            const auto membership = Make<clsHTDRDDQuestionSubtest>();
            Fill(membership->Include, membership->Weight);
            q.Subtests->Add(membership);
        }
        if (!Rarely() && q.Subtests->Exists(1)) q.Subtests->SetInclude(1, true);
        rdd_->Questions->Add(made);
    }
    /// If versions have a question, the reader checks their number. If they are scrambled, it also checks the
    /// length of the sequences and doesn't read an empty sequence.
    void FillVersions() {
        clsHTDRDDVersions& versions = *rdd_->Versions;
        const std::int32_t questions = rdd_->Questions->Count();
        const std::int32_t number = Below(4);
        versions.Question = OneOf({0, 1, 1, 2, -1, 2147483647});
        for (std::int32_t left = number; left > 0; --left)
            versions.Answers->Add(versions.Question > 0 ? OddLine() : OddText());
        std::int32_t sequences = OneOf({0, 1, number, number});
        const bool scrambled = versions.Question > 0 && number > 1 && sequences == number;
        if (scrambled ? questions == 0 : sequences > 1 && !wild_) sequences = 0;
        for (; sequences > 0; --sequences) {
            const auto sequence = Make<clsHTDRDDSequence>();
            versions.Sequences->Add(sequence);
            for (std::int32_t left = scrambled ? questions : Below(4); left > 0; --left)
                sequence->Add(1 + Below(questions + (scrambled ? 0 : 9)));
        }
    }

    std::mt19937_64 random_;
    bool wild_ = Below(2) == 0;
    bool everyScale_ = Below(2) == 0;
    bool generic_ = false;
    Ref<clsHTDRDD> rdd_ = Make<clsHTDRDD>();
};

} // namespace htdrdd::test
