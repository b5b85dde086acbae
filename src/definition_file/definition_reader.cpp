#include "definition_file/definition_reader.h"

#include "definition_file/archive_stage.h"
#include "definition_file/header_section.h"
#include "definition_file/messages.h"
#include "definition_file/question_section.h"
#include "definition_file/repairs.h"
#include "definition_file/report_section.h"
#include "definition_file/scale_section.h"
#include "definition_file/scaled_score_section.h"
#include "definition_file/subtest_section.h"
#include "definition_file/versions_section.h"
#include "foundation/basError.h"
#include "foundation/basPublicFiles.h"
#include "platform/file_system.h"
#include "platform/text_stream.h"

#include <algorithm>
#include <array>
#include <thread>

namespace htdrdd {
namespace basTemplate {
namespace {

/// State of one read.
struct Reading {
    clsHTDRDD& rdd;
    SectionLines lines;
    std::int32_t lNumQuestions = 0; ///< counts that [Report] announces
    std::int32_t lNumVersions = 0;
    std::int32_t lNumSubtests = 0;
    bool sectionRead = false; ///< result of the last section reader
};

bool ReadVersions(Reading& r) {
    if (r.rdd.ReportType != HTDReportTypeGenericGrade)
        return VB_RT_read_versions(r.lines, *r.rdd.Versions, r.lNumQuestions);
    // This is meant: nothing is read and the line stays, so the loop meets it again and never ends. A generic
    // key must not hold this section, and no writer makes one.
    std::this_thread::yield();
    return r.sectionRead;
}

struct Section {
    TextView line; ///< in upper case
    bool (*read)(Reading& r);
};

/// In the order of comparison.
constexpr std::array kSections{
    Section{u"[REPORT]",
            [](Reading& r) {
                return VB_RT_read_report(r.lines, r.rdd, r.lNumQuestions, r.lNumVersions, r.lNumSubtests);
            }},
    Section{u"[SCALE]", [](Reading& r) { return VB_RT_read_scale(r.lines, *r.rdd.GradeScale); }},
    Section{u"[SUBTESTSCALE]",
            [](Reading& r) { return VB_RT_read_scale(r.lines, *r.rdd.SubtestGradeScale); }},
    Section{u"[SCALEDSCORE]",
            [](Reading& r) { return VB_RT_read_scaled_score(r.lines, *r.rdd.ScaledScore); }},
    Section{u"[SUBTESTSCALEDSCORE]",
            [](Reading& r) { return VB_RT_read_scaled_score(r.lines, *r.rdd.SubtestScaledScore); }},
    Section{u"[SUBTEST]", [](Reading& r) { return VB_RT_read_subtest(r.lines, *r.rdd.Subtests); }},
    Section{u"[HEADER]", [](Reading& r) { return VB_RT_read_header(r.lines, *r.rdd.Header); }},
    Section{u"[VERSIONS]", ReadVersions},
    Section{u"[SEQUENCE]",
            [](Reading& r) { return VB_RT_read_sequence(r.lines, *r.rdd.Versions, r.lNumQuestions); }},
    Section{u"[QUESTION]",
            [](Reading& r) { return VB_RT_read_question(r.lines, r.lNumSubtests, *r.rdd.Questions); }},
};

/// False where a section reader failed or the first line is no section line.
bool ReadSections(Reading& r, Where at = Where::current()) {
    while (!r.lines.AtEnd()) {
        if (!r.lines.HoldsSectionLine()) r.lines.Next(at);
        const auto* const section = std::find_if(kSections.begin(), kSections.end(),
                                                 [&](const Section& s) { return r.lines.Begins(s.line); });
        if (section != kSections.end())
            r.sectionRead = section->read(r);
        else if (!r.lines.AtEnd())
            r.lines.Next(at);
        if (!r.sectionRead) return false;
    }
    return true;
}

/// Whether what was found is what the file announced; complains of the first count that isn't.
bool CountsMatch(const Reading& r, Where at = Where::current()) {
    const auto fails = [at](TextView what) {
        ShowInvalidFile(Text(u"An error occurred reading the configuration file. ").append(what), at);
        return false;
    };
    const std::int32_t answers = r.rdd.Versions->Answers->Count();
    const std::int32_t sequences = r.rdd.Versions->Sequences->Count();
    if (r.rdd.Questions->Count() != r.lNumQuestions)
        return fails(u"The NumQuestions parameter did not match the number of questions found.");
    if (r.rdd.Subtests->Count() != r.lNumSubtests)
        return fails(u"The NumSubtests parameter did not match the number of subtests found.");
    if (r.lNumVersions > 1 && answers != r.lNumVersions)
        return fails(u"The NumVersions parameter did not match the number of test versions found.");
    if (sequences > 1 && sequences != answers)
        return fails(u"The number of question sequences did not match the number of test versions found.");
    return true;
}

} // namespace

bool VB_RT_read_template(TextView sFile, clsHTDRDD& oRDD) noexcept {
    bool result = false;
    ArchiveStage archive;
    try {
        FileSystem& files = CurrentFileSystem();
        if (!files.FileExists(sFile)) return false;
        const auto text = archive.Open(sFile);
        if (!text) return false;
        oRDD.Clear();
        TextReader stream(files, *text, basPublic::EncodingOf(*text));
        Reading reading{oRDD, SectionLines(stream)};
        if (!ReadSections(reading)) return false;
        if (CountsMatch(reading)) {
            RepairDefinition(oRDD);
            result = true;
        }
        archive.Close();
    } catch (...) { ReportFailure(u"HTDRdd91 - basTemplate.VB_RT_read_template"); }
    return result;
}

} // namespace basTemplate

bool clsHTDRDD::Read(TextView sRDDFile) {
    const Ref<clsHTDRDD> self(this); // a handler may release the object
    Text file(sRDDFile);
    const bool result = basTemplate::VB_RT_read_template(file, *this);
    if (result) FileName = std::move(file);
    AfterRead.Raise();
    return result;
}

} // namespace htdrdd
