#include "htdrdd91/definition_file/archive_stage.h"
#include "htdrdd91/definition_file/basPublicUnicode.h"
#include "htdrdd91/definition_file/header_section.h"
#include "htdrdd91/definition_file/messages.h"
#include "htdrdd91/definition_file/question_section.h"
#include "htdrdd91/definition_file/repairs.h"
#include "htdrdd91/definition_file/report_section.h"
#include "htdrdd91/definition_file/scale_section.h"
#include "htdrdd91/definition_file/scaled_score_section.h"
#include "htdrdd91/definition_file/subtest_section.h"
#include "htdrdd91/definition_file/versions_section.h"
#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/model/clsHTDRDD.h"
#include "htdrdd91/platform/file_system.h"
#include "htdrdd91/platform/text_stream.h"

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

bool ReadVersionsSection(Reading& r) {
    if (r.rdd.ReportType != HTDReportTypeGenericGrade)
        return ReadVersions(r.lines, *r.rdd.Versions, r.lNumQuestions);
    // This is meant: nothing is read and the current line stays, so the loop in ReadSections never ends. A
    // generic key must not contain this section, and no writer writes it.
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
                return ReadReport(r.lines, r.rdd, r.lNumQuestions, r.lNumVersions, r.lNumSubtests);
            }},
    Section{u"[SCALE]", [](Reading& r) { return ReadScale(r.lines, *r.rdd.GradeScale); }},
    Section{u"[SUBTESTSCALE]", [](Reading& r) { return ReadScale(r.lines, *r.rdd.SubtestGradeScale); }},
    Section{u"[SCALEDSCORE]", [](Reading& r) { return ReadScaledScore(r.lines, *r.rdd.ScaledScore); }},
    Section{u"[SUBTESTSCALEDSCORE]",
            [](Reading& r) { return ReadScaledScore(r.lines, *r.rdd.SubtestScaledScore); }},
    Section{u"[SUBTEST]", [](Reading& r) { return ReadSubtest(r.lines, *r.rdd.Subtests); }},
    Section{u"[HEADER]", [](Reading& r) { return ReadHeader(r.lines, *r.rdd.Header); }},
    Section{u"[VERSIONS]", ReadVersionsSection},
    Section{u"[SEQUENCE]",
            [](Reading& r) { return ReadSequence(r.lines, *r.rdd.Versions, r.lNumQuestions); }},
    Section{u"[QUESTION]",
            [](Reading& r) { return ReadQuestion(r.lines, r.lNumSubtests, *r.rdd.Questions); }},
};

/// Returns false if a section reader failed or the first line isn't a section line.
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

/// Whether the counts match those that the file announces; complains about the first that doesn't.
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

/// Reads a definition file into an object, which is cleared once the file's text is found. Returns false if
/// the file is missing or broken; the host learns of a broken one, unless its first line isn't a section
/// line.
bool ReadDefinition(TextView sFile, clsHTDRDD& oRDD) noexcept {
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
    } catch (...) { ReportFailure(u"basTemplate.VB_RT_read_template"); }
    return result;
}

} // namespace
} // namespace basTemplate

bool clsHTDRDD::Read(TextView sRDDFile) {
    const auto self = Held(*this);
    Text file(sRDDFile);
    const bool result = basTemplate::ReadDefinition(file, *this);
    if (result) FileName = std::move(file);
    AfterRead.Raise();
    return result;
}

} // namespace htdrdd
