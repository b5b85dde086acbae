/// The whole content of a definition as one text.
#pragma once

#include "htdrdd91/base/number.h"
#include "htdrdd91/definition_file/report_members.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "htdrdd91/model/model_members.h"
#include "htdrdd91/scaled_scores/scaled_score_list.h"
#include "support/words.h"

#include <string>

namespace htdrdd::test {

/// A definition that sets every member. Its scales have no names, because scale names survive Clear.
inline const std::string kFullDefinition = Definition("full_definition");

template <class List, class Visit>
void Each(const List& list, Visit visit) {
    for (std::int32_t l = 1; l <= list.Count(); ++l) visit(*list.Item(l));
}

/// Writes the members of objects that hosts use, each followed by "|".
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

    void Tell(const clsHTDRDDScaledScore& score) { TellAll(score); }
    void Tell(const Ref<clsHTDRDDScaledScoreDB>& db) { TellAll(*db); }
    void Tell(const clsHTDRDDSubtest& subtest) { TellAll(subtest); }
    void Tell(const clsHTDRDDQuestion& question) { TellAll(question); }
    void Tell(const Ref<clsHTDRDDStrings>& list) { Tell(list->AsString()); }
    void Tell(const Ref<clsHTDRDDQuestionSubtests>& memberships) {
        for (const std::int32_t l : {1, 2, 3, memberships->Count()})
            if (memberships->Exists(l)) Tell(l, memberships->Includes(l), memberships->WeightOf(l));
    }
    template <class T>
    void Tell(const LazyRef<T>& object) {
        Tell(*object);
    }

    void Tell(const clsHTDRDD& rdd) {
        TellAll(rdd);
        Tell(rdd.Versions->Question, rdd.Versions->VType(), rdd.Versions->Answers->AsString());
        Each(*rdd.Versions->Sequences, [&](const auto& sequence) { Tell(sequence.AsString()); });
        for (const auto& [key, item] : rdd.Header->Entries()) Tell(key.ToText(), item.ToText());
        Tell(*rdd.GradeScale, *rdd.SubtestGradeScale, *rdd.ScaledScore, *rdd.SubtestScaledScore);
        Each(*rdd.Subtests, [&](const auto& subtest) { Tell(subtest); });
        Each(*rdd.Questions, [&](const auto& question) { Tell(question); });
    }

    Text told;

private:
    template <class Class>
    void TellAll(const Class& object) {
        EachMember<Class>([&](auto row) { Tell(object.*row.member); });
    }
};

/// "Name: 90=A 0=F"
inline Text RowsOf(const clsHTDRDDGradeScale& scale) {
    Text rows = scale.ScaleName + u":";
    Each(scale,
         [&](const auto& row) { rows.append(u" ").append(row.StartValue).append(u"=").append(row.Grade); });
    return rows;
}

template <class Subject>
Text Told(const Subject& subject) {
    Telling telling;
    telling.Tell(subject);
    return telling.told;
}

} // namespace htdrdd::test
