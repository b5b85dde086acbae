/// Reads any bytes as a definition file and walks what came of them.
#include "foundation/basPublicFiles.h"
#include "fuzzing.h"
#include "model/basPublicAnswers.h"
#include "model/clsHTDRDD.h"
#include "platform/number.h"
#include "platform/text_stream.h"
#include "support/memory_file_system.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace htdrdd::fuzz {
namespace {

constexpr TextView kFile = u"/fuzz.rdd";
constexpr TextView kFormerFile = u"/former.rdd";
constexpr std::int32_t kFew = 4; ///< how many are made of what costs nothing before it is asked for

/// A definition with something everywhere. Its scales have no names, since those outlive it.
constexpr std::string_view kFormer =
    "[Report]\nTemplateName=T\nNumQuestions=2\nNumVersions=2\nNumSubtests=1\nNumPages=2\nType=1\n"
    "Description=D\nNotes=N\nCustomHeader=1\n\n"
    "[Subtest]\nSubtestName=Overall\nBenchmark=70\n\n"
    "[Scale]\nNumValues=1\nGrades=A\nStartValues=0\n\n"
    "[SubtestScale]\nNumValues=1\nGrades=B\nStartValues=0\n\n"
    "[ScaledScore]\nScaledScoreName=S\nScaledScoreValues=1\nScaledScoreDBTable=T\nScaledScorePrecision=1\n\n"
    "[SubtestScaledScore]\nScaledScoreName=S\nScaledScoreDBDSNBased=1\n\n"
    "[Header]\n_HEADER_COLS=1\nOWN=1\n\n"
    "[Versions]\nQuestion=1\nAnswers=A\tB\nSequence=1\t2\nSequence=2\t1\n\n"
    "[Question]\nQuestionName=Q1\nSubtestNumber=1,2\n[Question]\nQuestionName=Q2\n\n";

bool IsGeneric(TextView type) {
    try {
        return Rounded<std::int16_t>(LeadingNumber(type)) == HTDReportTypeGenericGrade;
    } catch (const Failure&) { return false; }
}

/// Whether a [Versions] section that isn't the last line may stand in a generic key: there the reader never
/// ends, which is meant. The test goes by lines, wherever the type stands and whatever a later one says, so
/// it may also skip a file that would end.
bool MayNeverEnd(FileSystem& files) {
    TextReader stream(files, kFile, basPublic::IsUnicodeFile(kFile) ? Encoding::Unicode : Encoding::CodePage);
    for (bool generic = false; !stream.AtEndOfStream();) {
        const TextView line = Trimmed(stream.ReadLine());
        if (generic && SameInUpperCase(line, u"[VERSIONS]")) return !stream.AtEndOfStream();
        const std::size_t equals = line.find(u'=');
        if (equals == TextView::npos || !SameInUpperCase(TrimmedEnd(line.substr(0, equals)), u"TYPE"))
            continue;
        generic = generic || IsGeneric(line.substr(equals + 1));
    }
    return false;
}

/// Writes down all that a definition holds, through the members that a host uses.
class Walk {
public:
    explicit Walk(const clsHTDRDD& rdd) : rdd_(rdd) {
        Tell(rdd.TemplateName, rdd.Description, rdd.Notes, rdd.ReportType, rdd.NumPages, rdd.CustomHeader);
        Tell(rdd.Versions->Question, rdd.Versions->VType());
        List(*rdd.Versions->Answers);
        for (std::int32_t l = 1; l <= rdd.Versions->Sequences->Count(); ++l)
            Tell(rdd.Versions->Sequences->Item(l)->AsString());
        for (const auto& [key, item] : rdd.Header->Entries()) Tell(key.ToText(), item.ToText());
        Scale(*rdd.GradeScale);
        Scale(*rdd.SubtestGradeScale);
        Score(*rdd.ScaledScore);
        Score(*rdd.SubtestScaledScore);
        for (std::int32_t l = 1; l <= rdd.Subtests->Count(); ++l) {
            const auto subtest = rdd.Subtests->Item(l);
            Tell(subtest->SubtestName, subtest->Description, subtest->Benchmark);
            Scale(*subtest->GradeScale);
            Score(*subtest->ScaledScore);
            if (l <= kFew) Selection(l, subtest->SubtestName);
        }
        for (std::int32_t l = 1; l <= rdd.Questions->Count(); ++l) Question(*rdd.Questions->Item(l));
    }
    [[nodiscard]] const Text& Told() const { return told_; }

private:
    void Tell(TextView text) { told_.append(text).append(u"\n"); }
    void Tell(double number) { Tell(InvariantText(number)); }
    template <class... More>
    requires(sizeof...(More) > 1) void Tell(const More&... more) { (Tell(more), ...); }

    void List(const clsHTDRDDStrings& list) {
        const Text text = list.AsString();
        Tell(text);
        Demand(list.Count() == 0 || Join(list.AsArray(), u"\t") == text);
        Demand(!list.Exists(0) && !list.Exists(list.Count() + 1));
    }

    void Scale(const clsHTDRDDGradeScale& scale) {
        Tell(scale.ScaleName, scale.AsString(false), scale.AsString(true));
        const Array<Text> grades = scale.AsArray();
        for (const double score : {-1.0, 59.5, 89.9995, 1e300}) {
            const Text grade = scale.CalculateGrade(score);
            Demand(scale.Count() == 0 ? grade.empty() : std::ranges::count(grades.Items(), grade) > 0);
            Tell(grade);
        }
    }

    void Score(const clsHTDRDDScaledScore& score) {
        const clsHTDRDDScaledScoreDB& db = *score.DB;
        Tell(score.ScaledScoreName, score.ScaledScoreValues, score.Precision, score.LearningObjectivePrimary,
             score.LearningObjectiveSecondary, score.ScaledScoreCriteriaPrimary,
             score.ScaledScoreCriteriaSecondary);
        Tell(db.Name, db.Catalog, db.Table, db.MinFieldPrimary, db.MaxFieldPrimary, db.MinFieldSecondary,
             db.MaxFieldSecondary, db.ScoreField, db.ScoreGrade, db.DBType, TextView(db.Connect),
             db.DirectoryBased, db.DSNBased, db.DSNName, TextView(db.User), TextView(db.Password));
        Demand(score.Copy()->DB->Table == db.Table);
    }

    void Selection(std::int32_t subtest, const Text& name) {
        std::int32_t number = 0;
        double points = 0;
        Tell(rdd_.GetExtraCredit(subtest, &number, &points), number, points);
        if (const auto chosen = rdd_.GetSubtestQuestions(subtest)) Tell(chosen->Count());
        if (const auto chosen = rdd_.GetSubtestQuestions(name)) Tell(chosen->Count());
    }

    void Memberships(clsHTDRDDQuestionSubtests& memberships) {
        const std::int32_t count = memberships.Count();
        Tell(count);
        for (const std::int32_t l : {1, 2, 3, count}) {
            if (!memberships.Exists(l)) continue;
            const bool included = memberships.Includes(l);
            const double weight = memberships.WeightOf(l);
            Tell(included, weight);
            Demand(memberships.Item(l)->Include == included && memberships.Item(l)->Weight == weight);
        }
        Demand(!memberships.Item(0) && memberships.Count() == count);
    }

    void Question(const clsHTDRDDQuestion& q) {
        Tell(TextView(q.QuestionName), TextView(q.QuestionText), TextView(q.Difficulty),
             TextView(q.Reference), TextView(q.Topic), TextView(q.Keywords), TextView(q.Miscellaneous),
             TextView(q.Notes));
        Tell(q.MissingText, q.MissingValue, q.BlankText, q.BlankValue, q.MultipleText, q.MultipleValue);
        Tell(q.DataType, q.NAValue, q.MultiplesPermitted, q.IncludeGrade, q.IncludeTally, q.ExtraCredit,
             q.PartialCredit, q.IDField, q.SubjectiveField, q.NumCorrect, q.CorrectAnd, q.CorrectPoints,
             q.IncorrectPoints, q.NoResponsePoints, q.SubjectivePoints, q.MinValue, q.MaxValue, q.Benchmark);
        for (const auto* list :
             {&q.AnswerValues, &q.AnswerCodes, &q.CorrectAnswers, &q.CorrectCodes, &q.CorrectAnswerPoints})
            List(**list);
        std::int16_t place = 0;
        Tell(q.HighCode(&place), place);
        for (std::int32_t key = 0; key <= std::min(q.CorrectAnswers->Count() + 1, kFew); ++key)
            Tell(basPublic::CorrectAnswerToIndices(q, key), basPublic::CorrectAnswerToCode(q, key));
        Memberships(*q.Subtests);
    }

    const clsHTDRDD& rdd_;
    Text told_;
};

/// How often a walk over positions finds one.
template <class Next>
std::int32_t Steps(Next next) {
    std::int32_t steps = 0;
    for (std::int32_t l = next(0); l != 0; l = next(l)) ++steps;
    return steps;
}

/// What holds for every definition that was read.
void CheckDefinition(const clsHTDRDD& rdd) {
    const std::int32_t subtests = rdd.Subtests->Count();
    const std::int32_t sequences = rdd.Versions->Sequences->Count();
    Demand(rdd.FileName == kFile);
    Demand(subtests >= 1 && sequences >= 1);
    Demand(sequences == 1 || sequences == rdd.Versions->Answers->Count());
    Demand(rdd.Header->Count() >= 31);
    Demand(rdd.GradeScale->Count() == 0 || rdd.SubtestGradeScale->Count() > 0);
    Demand(rdd.GradeScale->Count() == 0 || rdd.Subtests->Item(1)->GradeScale->Count() > 0);
    for (std::int32_t l = 2; l <= subtests && rdd.SubtestGradeScale->Count() > 0; ++l)
        Demand(rdd.Subtests->Item(l)->GradeScale->Count() > 0);

    const auto& questions = *rdd.Questions;
    Demand(Steps([&](std::int32_t l) { return questions.NextGraded(l); }) == questions.NumGraded());
    Demand(Steps([&](std::int32_t l) { return questions.NextTallied(l); }) == questions.NumTallied());
    Demand(Steps([&](std::int32_t l) { return questions.NextSubjective(l); }) == questions.NumSubjective());
    Demand(questions.NextGraded(INT32_MAX) == 0);
    for (std::int32_t l = 1; l <= questions.Count(); ++l) {
        const auto question = questions.Item(l);
        Demand(question->MultiplesPermitted >= 0);
        Demand(!question->PartialCredit || !question->CorrectAnswerPoints->Item(1).empty());
        Demand(Text(question->QuestionName).find_first_of(u"\r\n") == Text::npos);
    }
}

} // namespace
} // namespace htdrdd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace htdrdd;
    using namespace htdrdd::fuzz;
    Host();
    test::MemoryFileSystem files;
    files.files[Text(kFile)] = std::string(data, data + size);
    files.files[Text(kFormerFile)] = kFormer;
    UseFileSystem(&files);
    if (!MayNeverEnd(files)) {
        const auto rdd = Make<clsHTDRDD>();
        const bool read = rdd->Read(kFile);
        Demand(read || rdd->FileName.empty());
        if (read) CheckDefinition(*rdd);

        const auto used = Make<clsHTDRDD>();
        Demand(used->Read(kFormerFile));
        Demand(used->Read(kFile) == read);
        Demand(used->FileName == (read ? kFile : kFormerFile));
        Demand(Walk(*used).Told() == Walk(*rdd).Told());
    }
    UseFileSystem(nullptr);
    return 0;
}
