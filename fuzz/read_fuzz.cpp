/// Reads any bytes as a definition file and walks the result.
#include "fuzzing.h"
#include "htdrdd91/base/number.h"
#include "htdrdd91/definition_file/basPublicUnicode.h"
#include "htdrdd91/foundation/basPublicFiles.h"
#include "htdrdd91/htdrdd91.h"
#include "htdrdd91/platform/text_stream.h"
#include "support/memory_file_system.h"
#include "support/telling.h"

#include <algorithm>
#include <string>

namespace htdrdd::fuzz {
namespace {

constexpr TextView kFile = u"/fuzz.rdd";
constexpr TextView kFormerFile = u"/former.rdd";

bool IsGeneric(TextView type) {
    try {
        return Rounded<std::int16_t>(LeadingNumber(type)) == HTDReportTypeGenericGrade;
    } catch (const Failure&) { return false; }
}

/// Whether a generic key may have a [Versions] section before its last line. This is meant: the reader never
/// finishes at such a section. The test only looks at lines: the type may be in any section and may be
/// overwritten, so some files that the reader would finish are skipped too.
bool MayNeverEnd(FileSystem& files) {
    TextReader stream(files, kFile, basPublic::EncodingOf(kFile));
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

/// The content of a definition, and the results of its queries for a few subtests and keys.
Text Walk(const clsHTDRDD& rdd) {
    constexpr std::int32_t kFew = 4; // a query for a subtest that is only announced creates it
    test::Telling telling;
    telling.Tell(rdd);
    for (std::int32_t l = 1; l <= std::min(rdd.Subtests->Count(), kFew); ++l) {
        std::int32_t number = 0;
        double points = 0;
        telling.Tell(rdd.GetExtraCredit(l, &number, &points), number, points);
        for (const Variant& which : {Variant(l), Variant(rdd.Subtests->Item(l)->SubtestName)})
            if (const auto chosen = rdd.GetSubtestQuestions(which)) telling.Tell(chosen->Count());
    }
    test::Each(*rdd.Questions, [&](const clsHTDRDDQuestion& question) {
        telling.Tell(question.HighCode());
        for (std::int32_t key = 0; key <= std::min(question.CorrectAnswers->Count() + 1, kFew); ++key)
            telling.Tell(basPublic::CorrectAnswerToIndices(question, key),
                         basPublic::CorrectAnswerToCode(question, key));
    });
    return telling.told;
}

/// Checks the properties of every definition that was read.
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

    test::Each(*rdd.Questions, [](const clsHTDRDDQuestion& question) {
        Demand(question.MultiplesPermitted >= 0);
        Demand(!question.PartialCredit || !question.CorrectAnswerPoints->Item(1).empty());
        Demand(Text(question.QuestionName).find_first_of(u"\r\n") == Text::npos);
    });
}

/// Whether a walk over rules ends without a finding.
template <class Walk>
bool FindsNothing(Walk walk) {
    bool nothing = true;
    try {
        walk(FindingSink([&](const Finding& finding) {
            Demand(finding.lRule > 0);
            return nothing = false;
        }));
    } catch (const Failure&) { nothing = false; }
    return nothing;
}

/// Checks that each validator agrees with the walk over all of its rules.
void Judge(const Ref<clsHTDRDD>& rdd) {
    using Found = const FindingSink&;
    Demand(rdd->ValidateKey() == FindsNothing([&](Found found) { WalkKeyRules(*rdd, found); }));
    Demand(rdd->ValidateSubtests() == FindsNothing([&](Found found) { WalkSubtestRules(*rdd, found); }));
    for (const auto type : {HTDVersionTypeNone, HTDVersionTypeKey, HTDVersionTypeSequence}) {
        Variant given = type;
        Demand(rdd->ValidateVersions(true, nullptr, &given) ==
               FindsNothing([&](Found found) { WalkVersionRules(*rdd, type, found); }));
    }
    const clsHTDRDDGradeScale& scale = *rdd->GradeScale;
    Demand(scale.Validate() == FindsNothing([&](Found found) { WalkGradeScaleRules(scale, found); }));
    bool any = false;
    for (std::int32_t l = 1; l <= rdd->Subtests->Count(); ++l) any = any || rdd->ScaledScoreIsValid(l);
    Demand(any == rdd->ScaledScoreIsValid());
}

/// Files with several [Report] sections may leave out memberships for some learning objectives, and then the
/// definition can't be saved. Older files may have sequences without numbers, which are written but not read.
bool IsWhole(const clsHTDRDD& rdd) {
    bool isWhole = true;
    test::Each(*rdd.Questions, [&](const clsHTDRDDQuestion& question) {
        isWhole = isWhole && question.Subtests->Count() >= rdd.Subtests->Count();
    });
    test::Each(*rdd.Versions->Sequences,
               [&](const clsHTDRDDSequence& sequence) { isWhole = isWhole && sequence.Count() > 0; });
    return isWhole;
}

/// A definition that was read can be saved, and after a save and a reload, each save writes the same bytes.
void SaveAgain(const Ref<clsHTDRDD>& rdd, test::MemoryFileSystem& files) {
    if (!IsWhole(*rdd)) return;
    std::string former;
    for (int round = 1; round <= 3; ++round) {
        Demand(rdd->Save(kFile, false, false));
        if (round == 3) Demand(files.files[Text(kFile)] == former);
        former = files.files[Text(kFile)];
        Demand(rdd->Read(kFile));
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
    files.files[Text(kFormerFile)] = test::kFullDefinition;
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
        const Text told = Walk(*rdd);
        Demand(Walk(*used) == told);
        Judge(rdd);
        Demand(Walk(*rdd) == told);
        if (read) SaveAgain(rdd, files);
    }
    UseFileSystem(nullptr);
    return 0;
}
