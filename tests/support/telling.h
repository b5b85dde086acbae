/// All that a definition holds as one text.
#pragma once

#include "htdrdd91/base/number.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "support/words.h"

#include <string>

namespace htdrdd::test {

/// A definition with something everywhere. Its scales have no names, since those outlive it.
inline const std::string kFullDefinition = Definition("full_definition");

template <class List, class Visit>
void Each(const List& list, Visit visit) {
    for (std::int32_t l = 1; l <= list.Count(); ++l) visit(*list.Item(l));
}

/// Writes down objects through the members that a host uses, "|" behind each.
class Telling {
public:
    void Tell(TextView text) { told.append(text).append(u"|"); }
    void Tell(double number) { Tell(InvariantText(number)); }
    template <class... More>
    requires(sizeof...(More) > 1) void Tell(const More&... more) { (Tell(more), ...); }

    void Tell(const clsHTDRDDGradeScale& scale) {
        Tell(scale.ScaleName, scale.AsString(false), scale.AsString(true));
        for (const double score : {-1.0, 59.5, 89.9995, 1e300}) Tell(scale.CalculateGrade(score));
    }

    void Tell(const clsHTDRDDScaledScore& score) {
        const clsHTDRDDScaledScoreDB& db = *score.DB;
        Tell(score.ScaledScoreCriteriaPrimary, score.ScaledScoreName, score.ScaledScoreValues,
             score.Precision, score.LearningObjectivePrimary, score.LearningObjectiveSecondary,
             score.ScaledScoreCriteriaSecondary);
        Tell(db.Name, db.Catalog, db.Table, db.MinFieldPrimary, db.MaxFieldPrimary, db.MinFieldSecondary,
             db.MaxFieldSecondary, db.ScoreField, db.ScoreGrade, db.DBType, db.DirectoryBased, db.DSNBased,
             db.DSNName, db.Valid, TextView(db.Connect), TextView(db.User), TextView(db.Password));
    }

    void Tell(const clsHTDRDDQuestion& q) {
        for (const TextView text : {TextView(q.QuestionName), TextView(q.QuestionText),
                                    TextView(q.Difficulty), TextView(q.Reference), TextView(q.Topic),
                                    TextView(q.Keywords), TextView(q.Miscellaneous), TextView(q.Notes)})
            Tell(text);
        Tell(q.MissingText, q.MissingValue, q.BlankText, q.BlankValue, q.MultipleText, q.MultipleValue);
        Tell(q.DataType, q.NAValue, q.MultiplesPermitted, q.IncludeGrade, q.IncludeTally, q.ExtraCredit,
             q.PartialCredit, q.IDField, q.SubjectiveField, q.NumCorrect, q.CorrectAnd, q.CorrectPoints,
             q.IncorrectPoints, q.NoResponsePoints, q.SubjectivePoints, q.MinValue, q.MaxValue, q.Benchmark);
        for (const auto& list :
             {q.AnswerValues, q.AnswerCodes, q.CorrectAnswers, q.CorrectCodes, q.CorrectAnswerPoints})
            Tell(list->AsString());
        const std::int32_t memberships = q.Subtests->Count();
        for (const std::int32_t l : {1, 2, 3, memberships})
            if (q.Subtests->Exists(l)) Tell(l, q.Subtests->Includes(l), q.Subtests->WeightOf(l));
    }

    void Tell(const clsHTDRDD& rdd) {
        Tell(rdd.TemplateName, rdd.Description, rdd.Notes, rdd.ReportType, rdd.NumPages, rdd.CustomHeader);
        Tell(rdd.Versions->Question, rdd.Versions->VType(), rdd.Versions->Answers->AsString());
        Each(*rdd.Versions->Sequences, [&](const auto& sequence) { Tell(sequence.AsString()); });
        for (const auto& [key, item] : rdd.Header->Entries()) Tell(key.ToText(), item.ToText());
        Tell(*rdd.GradeScale, *rdd.SubtestGradeScale, *rdd.ScaledScore, *rdd.SubtestScaledScore);
        Each(*rdd.Subtests, [&](const auto& subtest) {
            Tell(subtest.SubtestName, subtest.Description, subtest.Benchmark, *subtest.GradeScale,
                 *subtest.ScaledScore);
        });
        Each(*rdd.Questions, [&](const auto& question) { Tell(question); });
    }

    Text told;
};

template <class Subject>
Text Told(const Subject& subject) {
    Telling telling;
    telling.Tell(subject);
    return telling.told;
}

} // namespace htdrdd::test
