#include "htdrdd91/model/clsHTDRDD.h"

#include "htdrdd91/base/number.h"
#include "htdrdd91/base/number_collection.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/version.h"
#include "htdrdd91/model/basPublicHeader.h"
#include "htdrdd91/platform/thread_state.h"

namespace htdrdd {

clsHTDRDD::clsHTDRDD() noexcept {
    try {
        Questions = Make<clsHTDRDDQuestions>();
        Versions = Make<clsHTDRDDVersions>();
        Subtests = Make<clsHTDRDDSubtests>();
        GradeScale = Make<clsHTDRDDGradeScale>();
        SubtestGradeScale = Make<clsHTDRDDGradeScale>();
        ScaledScore = Make<clsHTDRDDScaledScore>();
        SubtestScaledScore = Make<clsHTDRDDScaledScore>();
        Header = Make<Dictionary>();
        Header->CompareMode(Compare::IgnoreCase);
        basPublic::InitializeHeader(Header);
    } catch (...) { ReportFailure(u"clsHTDRDD.Class_Initialize"); }
}

// This is meant: the members are released in this order, independent of their declarations. Hosts can
// observe it, since their own objects end with the members.
clsHTDRDD::~clsHTDRDD() {
    Questions = nullptr;
    Versions = nullptr;
    Subtests = nullptr;
    GradeScale = nullptr;
    SubtestGradeScale = nullptr;
    ScaledScore = nullptr;
    SubtestScaledScore = nullptr;
    oState = nullptr;
    Header = nullptr;
}

void clsHTDRDD::Clear() {
    const auto self = Held(*this);
    Questions->RemoveAll();
    Versions->Sequences->RemoveAll();
    Versions->Answers->RemoveAll();
    Versions->Question = 0;
    Subtests->RemoveAll();
    GradeScale->RemoveAll();
    SubtestGradeScale->RemoveAll();
    ScaledScore->Clear();
    SubtestScaledScore->Clear();
    basPublic::InitializeHeader(Header);
    TemplateName.clear();
    ReportType = HTDReportTypeSurvey;
    NumPages = 0;
    Description.clear();
    Notes.clear();
    CustomHeader = false;
    oState = nullptr;
}

bool clsHTDRDD::SetError(const Ref<LateBound>& oErr) {
    ThisThread().errorHost = oErr;
    return static_cast<bool>(oErr);
}

Text clsHTDRDD::Version() const { return VersionText(); }

bool clsHTDRDD::AddDefaultSubtest() noexcept {
    bool result = false;
    try {
        const auto self = Held(*this);
        if (Subtests->Count() == 0) {
            auto overall = Make<clsHTDRDDSubtest>();
            overall->SubtestName = u"Overall";
            Subtests->Add(std::move(overall));
            for (std::int32_t l = 1; l <= Questions->Count(); ++l) {
                const auto memberships = Questions->Item(l)->Subtests;
                if (memberships->Count() == 0) memberships->Add(true);
            }
        }
        result = Subtests->Count() >= 1;
    }
    // This is meant: the location names the collection, and hosts rely on it.
    catch (...) {
        ReportFailure(u"clsHTDRDDSubtests.AddDefaultSubtest");
    }
    return result;
}

bool clsHTDRDD::GetExtraCredit(const Variant& lSubtest, std::int32_t* lNumQuestions,
                               double* dPossiblePoints) const noexcept {
    std::int32_t number = 0;
    double points = 0;
    bool result = false;
    try {
        const double subtest = lSubtest.IsMissing() ? 1 : lSubtest.ToDouble();
        if (subtest > 0 && subtest <= Subtests->Count()) {
            const auto position = Rounded<std::int32_t>(subtest);
            for (std::int32_t l = 1; l <= Questions->Count(); ++l) {
                const auto question = Questions->Item(l);
                if (!question->Subtests->Includes(position) || !question->ExtraCredit) continue;
                if (!question->IncludeGrade && !question->SubjectiveField) continue;
                ++number;
                points += question->IncludeGrade ? question->CorrectPoints : question->SubjectivePoints;
            }
            result = number > 0;
        }
    } catch (...) { ReportFailure(u"clsHTDRDD.GetExtraCredit"); }
    if (lNumQuestions != nullptr) *lNumQuestions = number;
    if (dPossiblePoints != nullptr) *dPossiblePoints = points;
    return result;
}

Ref<NumberCollection> clsHTDRDD::GetSubtestQuestions(const Variant& vSubtest) const noexcept {
    Ref<NumberCollection> result;
    try {
        std::int32_t position = 0;
        if (const Text* name = vSubtest.AsText()) {
            for (std::int32_t l = 1; position == 0 && l <= Subtests->Count(); ++l)
                if (SameText(Subtests->Item(l)->SubtestName, *name)) position = l;
            if (position == 0) return result;
        } else if (vSubtest.Is() == Variant::Kind::Integer16 || vSubtest.Is() == Variant::Kind::Integer32) {
            position = vSubtest.ToInteger32();
        } else {
            return result;
        }
        auto questions = Make<NumberCollection>();
        if (position >= 1 && position <= Subtests->Count()) {
            for (std::int32_t l = 1; l <= Questions->Count(); ++l) {
                const auto question = Questions->Item(l);
                if (question->Subtests->Includes(position))
                    questions->Add(l, TextView(question->QuestionName));
            }
        }
        result = std::move(questions);
    } catch (...) { ReportFailure(u"clsHTDRDD.GetSubtestQuestions"); }
    return result;
}

Variant clsHTDRDD::Get(TextView name) {
    if (SameText(name, u"Subtests")) return Subtests;
    return LateBound::Get(name);
}

} // namespace htdrdd
