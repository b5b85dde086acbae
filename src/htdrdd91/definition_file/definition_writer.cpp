#include "htdrdd91/base/number.h"
#include "htdrdd91/definition_file/archive_stage.h"
#include "htdrdd91/definition_file/header_section.h"
#include "htdrdd91/definition_file/question_section.h"
#include "htdrdd91/definition_file/report_section.h"
#include "htdrdd91/definition_file/scale_section.h"
#include "htdrdd91/definition_file/subtest_section.h"
#include "htdrdd91/definition_file/target_file.h"
#include "htdrdd91/definition_file/versions_section.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/foundation/basPublicFiles.h"
#include "htdrdd91/foundation/clsDZip.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/thread_state.h"

namespace htdrdd {
namespace basTemplate {
namespace {

/// State of one save.
struct Saving {
    clsHTDRDD& rdd;
    TextWriter& out;
    bool generic;
    Text decimalMark;
};

void WriteSubtests(const Saving& s) {
    const Variant document = Ref<clsHTDRDD>(&s.rdd);
    for (std::int32_t l = 1; l <= s.rdd.Subtests->Count(); ++l)
        WriteSubtest(s.out, *s.rdd.Subtests->Item(l), document, l > 1, s.decimalMark);
}

/// The document copies the grade scale and the scaled score of the overall learning objective.
void TakeOverOverall(clsHTDRDD& rdd) {
    if (rdd.Subtests->Count() == 0) return;
    const auto overall = rdd.Subtests->Item(1);
    if (const auto& scale = overall->GradeScale.Peek(); scale.Count() >= 1) rdd.GradeScale = scale.Copy();
    const auto score = Held(overall->ScaledScore.Peek());
    if (score->IsValid(Ref<clsHTDRDD>(&rdd), false)) rdd.ScaledScore = score->Copy();
}

void WriteScale(const Saving& s, TextView section, const clsHTDRDDGradeScale& scale) {
    if (scale.Count() == 0) return;
    s.out.WriteLine(section);
    WriteScaleKeys(s.out, scale, s.decimalMark);
    s.out.WriteLine({});
}

/// Whether to save versions that can't be graded together. This is meant: the versions are saved in full,
/// although the question suggests otherwise.
bool VersionsMayBeSaved(const clsHTDRDD& rdd, bool bVerbose) {
    if (rdd.Versions->VType() == HTDVersionTypeNone || rdd.ValidateVersions(bVerbose) || !bVerbose)
        return true;
    return !UserDeclines(u"Invalid Test Versions",
                         u"Would you like to continue the save operation without test versions?");
}

void WriteQuestions(const Saving& s) {
    const auto questions = s.rdd.Questions;
    const std::int32_t lNumSubtests = s.rdd.Subtests->Count();
    for (std::int32_t l = 1; l <= questions->Count(); ++l) {
        const auto question = questions->Item(l);
        if (!s.generic || question->IncludeGrade || question->SubjectiveField)
            WriteQuestion(s.out, *question, s.generic, lNumSubtests);
    }
}

/// Returns false if the user declines.
bool WriteText(const Saving& s, bool bVerbose) {
    WriteReport(s.out, s.rdd);
    WriteSubtests(s);
    TakeOverOverall(s.rdd);
    WriteScale(s, u"[Scale]", *s.rdd.GradeScale);
    WriteScale(s, u"[SubtestScale]", *s.rdd.SubtestGradeScale);
    if (s.rdd.Header->Count() > 0) {
        WriteHeader(s.out, *s.rdd.Header);
        s.out.WriteLine({});
    }
    if (!s.generic) {
        if (!VersionsMayBeSaved(s.rdd, bVerbose)) return false;
        WriteVersions(s.out, *s.rdd.Versions);
    }
    WriteQuestions(s);
    return true;
}

/// Writes a definition to a temporary file, makes way if sFile exists, and puts the new file in its place, as
/// an archive or as the text itself. The definition copies the grade scale and the scaled score of learning
/// objective 1, even if the save fails. Returns whether sFile exists at the end; false if the user declines
/// to save invalid test versions, and after a failure, which is reported and leaves the temporary file.
bool WriteDefinition(TextView sFile, clsHTDRDD& oRDD, bool bEncrypt, bool bVerbose) noexcept {
    bool result = false;
    try {
        const auto held = Held(oRDD);
        FileSystem& files = CurrentFileSystem();
        const Text password = ArchivePassword();
        const bool generic = oRDD.ReportType == HTDReportTypeGenericGrade;
        const Text temporary = basPublic::GetUniqueFileName({}, {}, {});
        TextWriter out(files, temporary);
        const bool complete = WriteText({oRDD, out, generic, RegionalText(1.2).substr(1, 1)}, bVerbose);
        out.Close();
        if (!complete) {
            files.DeleteFile(temporary);
            return false;
        }
        const TargetFile target(sFile);
        target.MakeWay(password);
        // This is meant: the text of an archive stays in the temporary folder, and the result only says
        // whether a file exists at the end.
        if (bEncrypt) {
            Make<clsDZip>()->Zip(target.Path(), temporary, password);
            target.RestoreRights();
        } else {
            target.Put(temporary);
        }
        result = files.FileExists(sFile);
    } catch (...) { ReportFailure(u"basTemplate.VB_RT_save_template"); }
    return result;
}

} // namespace
} // namespace basTemplate

bool clsHTDRDD::Save(TextView sRDDFile, bool bEncrypt, bool bVerbose) {
    const auto self = Held(*this);
    Text file(sRDDFile);
    const bool result = basTemplate::WriteDefinition(file, *this, bEncrypt, bVerbose);
    if (result) FileName = std::move(file);
    return result;
}

Ref<clsHTDRDD> clsHTDRDD::Copy() noexcept {
    Ref<clsHTDRDD> result;
    try {
        FileSystem& files = CurrentFileSystem();
        const auto self = Held(*this);
        const Text name = FileName;
        const Text temporary = basPublic::GetUniqueFileName({}, {}, {});
        Ref<clsHTDRDD> made;
        if (Save(temporary, true, false)) {
            auto copy = Make<clsHTDRDD>();
            copy->SetError(ThisThread().errorHost);
            if (copy->Read(temporary)) {
                copy->FileName = name;
                made = std::move(copy);
            }
        }
        if (files.FileExists(temporary)) files.DeleteFile(temporary);
        result = std::move(made);
    } catch (...) { ReportFailure(u"clsHTDRDD.Copy"); }
    return result;
}

} // namespace htdrdd
