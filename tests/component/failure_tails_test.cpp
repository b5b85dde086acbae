// What outside hosts get of a failure: members with a failure tail report it and give a default result, the
// others let it pass. The signatures tell which is which; a change of one has to be meant.
#include "htdrdd91/foundation/clsDZip.h"
#include "htdrdd91/grade_scales/clsHTDGradeScaleManager.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "htdrdd91/scaled_scores/clsHTDScaledScoreManager.h"

namespace htdrdd::test {
namespace {

template <class F>
struct IsNoexcept : std::false_type {};
template <class C, class R, class... A>
struct IsNoexcept<R (C::*)(A...) noexcept> : std::true_type {};
template <class C, class R, class... A>
struct IsNoexcept<R (C::*)(A...) const noexcept> : std::true_type {};

template <auto... Members>
constexpr bool kReport = (IsNoexcept<decltype(Members)>::value && ...);
template <auto... Members>
constexpr bool kLetPass = (!IsNoexcept<decltype(Members)>::value && ...);

using Strings = clsHTDRDDStrings;
static_assert(kReport<&Strings::Add, &Strings::AddArray, &Strings::AddDelimitedString, &Strings::Remove,
                      &Strings::RemoveAll, &Strings::Locate, &Strings::Exists, &Strings::AsString,
                      &Strings::AsArray, &Strings::Copy, &Strings::SortAscending, &Strings::SortDescending>);

using Scale = clsHTDRDDGradeScale;
static_assert(kReport<&Scale::AddArrays, &Scale::Validate, &Scale::CalculateGrade, &Scale::Export,
                      &Scale::Import, &Scale::Item, &Scale::Exists>);
static_assert(kLetPass<&Scale::Add, &Scale::Remove, &Scale::AddDelimitedStrings, &Scale::AsArray,
                       &Scale::AsString, &Scale::Copy>);

using Score = clsHTDRDDScaledScore;
static_assert(kReport<&Score::Clear, &Score::Copy, &Score::IsValid, &Score::ToString, &Score::FromString,
                      &Score::Export, &Score::Import>);

using Questions = clsHTDRDDQuestions;
static_assert(kReport<&Questions::NumGraded, &Questions::NextGraded, &Questions::NumPartialCredit,
                      &Questions::NumExtraCredit, &Questions::NextPartialCredit, &Questions::NextExtraCredit,
                      &Questions::NumSubjective, &Questions::NextSubjective, &Questions::NumTallied,
                      &Questions::NextTallied, &Questions::Add, &Questions::Remove, &Questions::RemoveAll,
                      &Questions::Item, &Questions::Find, &clsHTDRDDQuestion::HighCode>);

using Sequence = clsHTDRDDSequence;
using Sequences = clsHTDRDDSequences;
static_assert(kReport<&Sequence::Exists, &Sequences::Item, &Sequences::Exists, &clsHTDRDDVersions::VType>);
static_assert(
    kLetPass<&Sequence::Add, &Sequence::Remove, &Sequence::AsArray, &Sequence::AsString, &Sequence::AddArray,
             &Sequence::AddDelimitedString, &Sequences::Add, &Sequences::AddDefault, &Sequences::Remove>);

using Subtests = clsHTDRDDSubtests;
using Memberships = clsHTDRDDQuestionSubtests;
static_assert(kReport<&Subtests::Add, &Subtests::Find, &Subtests::Item, &Subtests::Exists, &Memberships::Add,
                      &Memberships::Remove, &Memberships::RemoveAll, &Memberships::AsArray,
                      &Memberships::AddArray, &Memberships::Exists>);
static_assert(kLetPass<&Subtests::Remove>);

using Rdd = clsHTDRDD;
static_assert(kReport<&Rdd::Copy, &Rdd::GetExtraCredit, &Rdd::GetSubtestQuestions, &Rdd::ValidateVersions,
                      &Rdd::ValidateSubtests, &Rdd::ValidateKey, &Rdd::AddDefaultSubtest, &Rdd::SaveHeader,
                      &Rdd::LoadHeader, &Rdd::MergeTextKey, &Rdd::MergeGenericKey, &Rdd::ScaledScoreIsValid>);
static_assert(kLetPass<&Rdd::Clear, &Rdd::SetError, &Rdd::Version>);

template <class Manager>
constexpr bool kReports =
    kReport<&Manager::Add, &Manager::Remove, &Manager::Count, &Manager::Reset, &Manager::Exists,
            &Manager::Item, &Manager::Key, &Manager::Keys, &Manager::SaveToString, &Manager::LoadFromString>;
using Scales = clsHTDGradeScaleManager;
static_assert(kReports<Scales> && kReports<clsHTDScaledScoreManager>);
static_assert(
    kReport<&Scales::ClipToScale, &Scales::ScaleToClip, &Scales::CalcPercentScore, &Scales::CalcTotalScore,
            &Scales::CalcTotalPossibleScore, &clsDZip::Zip, &clsDZip::UnZip>);

} // namespace
} // namespace htdrdd::test
