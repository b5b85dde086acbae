/// The result of a merge, as one line.
#pragma once

#include "htdrdd91/platform/encoding.h"
#include "support/session.h"
#include "support/telling.h"

namespace htdrdd::test {

/// "Overall 70 | 1: A/B | g1 B/C 'One' | -1 | s&1 (A,B)": learning objectives with benchmarks, the versions,
/// and each question: ! if the lists of its keys differ in length, g graded, s subjective, x extra credit, p
/// partial credit, & if all answers are required, m if several may be marked, its memberships, the correct
/// answer of each key, and the text.
inline Text KeyOf(const clsHTDRDD& rdd) {
    Text told;
    Each(*rdd.Subtests, [&](const clsHTDRDDSubtest& subtest) {
        told.append(subtest.SubtestName).append(u" ").append(InvariantText(subtest.Benchmark)).append(u" ");
    });
    told.append(u"| ").append(DecimalText(rdd.Versions->Question));
    told.append(u": ").append(rdd.Versions->Answers->AsString(u"/"));
    Each(*rdd.Questions, [&](const clsHTDRDDQuestion& question) {
        told += u" | ";
        const auto flag = [&](bool isSet, char16_t sign) { told.append(isSet ? 1 : 0, sign); };
        const std::int32_t keys = question.CorrectAnswers->Count();
        flag(question.CorrectCodes->Count() != keys || question.CorrectAnswerPoints->Count() != keys, u'!');
        flag(!question.IncludeGrade && !question.SubjectiveField, u'-');
        flag(question.IncludeGrade, u'g');
        flag(question.SubjectiveField, u's');
        flag(question.ExtraCredit, u'x');
        flag(question.PartialCredit, u'p');
        flag(question.CorrectAnd, u'&');
        flag(question.MultiplesPermitted == HTDMultiplesPermittedAll, u'm');
        for (std::int32_t l = 1; l <= question.Subtests->Count(); ++l)
            told += question.Subtests->Includes(l) ? u'1' : u'0';
        if (question.CorrectAnswers->Count() > 0)
            told.append(u" ").append(question.CorrectAnswers->AsString(u"/"));
        if (!question.QuestionText.empty())
            told.append(u" '").append(TextView(question.QuestionText)).append(u"'");
    });
    return told;
}

/// The session of a test that merges.
class Merging : public Session {
protected:
    /// Runs `merge`. Returns its result, the resulting key or "unchanged", and the reports.
    template <class Merge>
    Text AfterMerge(Merge merge) {
        const Text before = Told(*rdd);
        Text told = merge() ? u"true " : u"false ";
        told += Told(*rdd) == before ? u"unchanged" : KeyOf(*rdd);
        for (const std::string& line : Heard()) told.append(u" ! ").append(FromUtf8(line));
        return told;
    }
};

} // namespace htdrdd::test
