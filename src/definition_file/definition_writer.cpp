#include "definition_file/definition_writer.h"

#include "definition_file/archive_stage.h"
#include "definition_file/header_section.h"
#include "definition_file/question_section.h"
#include "definition_file/report_section.h"
#include "definition_file/scale_section.h"
#include "definition_file/subtest_section.h"
#include "definition_file/target_file.h"
#include "definition_file/versions_section.h"
#include "foundation/basError.h"
#include "foundation/basPublicFiles.h"
#include "foundation/clsDZip.h"
#include "platform/number.h"
#include "platform/thread_state.h"

namespace htdrdd {
namespace basTemplate {
namespace {

/// What this save writes by.
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

/// The overall learning objective has the say over what the document holds for all.
void TakeOverOverall(clsHTDRDD& rdd) {
    if (rdd.Subtests->Count() == 0) return;
    const auto overall = rdd.Subtests->Item(1);
    if (const auto& scale = overall->GradeScale.Peek(); scale.Count() >= 1) rdd.GradeScale = scale.Copy();
    const Ref score(&overall->ScaledScore.Peek()); // a report may make the host replace it
    if (score->IsValid(Ref<clsHTDRDD>(&rdd), false)) rdd.ScaledScore = score->Copy();
}

void WriteScale(const Saving& s, TextView section, const clsHTDRDDGradeScale& scale) {
    if (scale.Count() == 0) return;
    s.out.WriteLine(section);
    WriteScaleKeys(s.out, scale, s.decimalMark);
    s.out.WriteLine({});
}

/// Whether versions that can't be graded together are saved all the same. This is meant: nothing is removed
/// from them, although the question sounds so.
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

/// False where the user declines.
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

} // namespace

bool VB_RT_save_template(TextView sFile, clsHTDRDD& oRDD, bool bEncrypt, bool bVerbose) noexcept {
    bool result = false;
    try {
        const Ref<clsHTDRDD> held(&oRDD); // a report may make the host release it
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
        // This is meant: the text behind an archive stays in the temporary folder, and only whether there is
        // a file at the end makes the result.
        if (bEncrypt) {
            Make<clsDZip>()->Zip(target.Path(), temporary, password);
            target.RestoreRights();
        } else {
            target.Put(temporary);
        }
        result = files.FileExists(sFile);
    } catch (...) { ReportFailure(u"HTDRdd91 - basTemplate.VB_RT_save_template"); }
    return result;
}

} // namespace basTemplate

bool clsHTDRDD::Save(TextView sRDDFile, bool bEncrypt, bool bVerbose) {
    const Ref<clsHTDRDD> self(this); // a report may make the host release the object
    Text file(sRDDFile);
    const bool result = basTemplate::VB_RT_save_template(file, *this, bEncrypt, bVerbose);
    if (result) FileName = std::move(file);
    return result;
}

Ref<clsHTDRDD> clsHTDRDD::Copy() noexcept {
    Ref<clsHTDRDD> result;
    try {
        FileSystem& files = CurrentFileSystem();
        const Ref<clsHTDRDD> self(this);
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
    } catch (...) { ReportFailure(u"HTDRdd91 - clsHTDRDD.Copy"); }
    return result;
}

} // namespace htdrdd
