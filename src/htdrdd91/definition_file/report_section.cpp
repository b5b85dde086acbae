#include "htdrdd91/definition_file/report_section.h"

#include "htdrdd91/definition_file/messages.h"
#include "htdrdd91/definition_file/report_members.h"
#include "htdrdd91/definition_file/section_rows.h"
#include "htdrdd91/foundation/basError.h"

namespace htdrdd::basTemplate {
namespace {

/// The document and the counts that the section announces.
struct Report {
    clsHTDRDD& rdd;
    std::int32_t lNumQuestions = 0;
    std::int32_t lNumSequences = 0;
    std::int32_t lNumVersions = 0;
    std::int32_t lNumSubtests = 0;
};
using Row = MemberRow<Report>;

template <auto Field>
constexpr Row Own(TextView key) {
    return {key, [](Report& report, TextView value, Where at) { ReadValue(value, report.rdd.*Field, at); },
            [](Text& line, const Report& report, Where /*at*/) { AppendValue(line, report.rdd.*Field); }};
}

void IgnoreValue(Report& /*report*/, TextView /*value*/, Where /*at*/) {}
bool Never(const Report& /*report*/) { return false; }

/// Older files list the names of all learning objectives here.
void ReadSubtestNames(Report& report, TextView value, Where /*at*/) {
    EachPiece(value, u"\t", [&](TextView name) {
        if (name.empty()) return;
        auto subtest = Make<clsHTDRDDSubtest>();
        subtest->SubtestName = name;
        report.rdd.Subtests->Add(std::move(subtest));
    });
}

/// In the order of writing; the last two occur only in older files.
constexpr std::array kRows{
    Own<&clsHTDRDD::TemplateName>(u"TemplateName"),
    PlainRow<Report, &Report::lNumQuestions>(u"NumQuestions"),
    Row{u"NumSequences", IgnoreValue,
        [](Text& line, const Report& r, Where /*at*/) { AppendValue(line, r.lNumSequences); }},
    PlainRow<Report, &Report::lNumVersions>(u"NumVersions"),
    PlainRow<Report, &Report::lNumSubtests>(u"NumSubtests"),
    Own<&clsHTDRDD::NumPages>(u"NumPages"),
    Row{u"Version", IgnoreValue, [](Text& line, const Report& r, Where /*at*/) { line += r.rdd.Version(); }},
    // The document holds any 32-bit value, a file only a 16-bit one.
    Row{u"Type",
        [](Report& r, TextView value, Where at) { ReadValueAs<std::int16_t>(value, r.rdd.ReportType, at); },
        [](Text& line, const Report& r, Where /*at*/) { AppendValue(line, r.rdd.ReportType); }},
    Own<&clsHTDRDD::Description>(u"Description"),
    Own<&clsHTDRDD::Notes>(u"Notes"),
    Own<&clsHTDRDD::CustomHeader>(u"CustomHeader"),
    Row{u"SequenceQuestion",
        [](Report& r, TextView value, Where at) { ReadValue(value, r.rdd.Versions->Question, at); }, nullptr,
        Never},
    Row{u"SubtestName", ReadSubtestNames, nullptr, Never},
};
constexpr std::size_t kOthers = 7; // four counts, the version, and two keys of older files
static_assert(kRows.size() == kMemberCount<clsHTDRDD> + kOthers,
              "Each plain member of a definition has a row.");

} // namespace

bool ReadReport(SectionLines& lines, clsHTDRDD& oRDD, std::int32_t& lNumQuestions, std::int32_t& lNumVersions,
                std::int32_t& lNumSubtests) noexcept {
    bool result = false;
    try {
        Report report{oRDD, lNumQuestions, 0, lNumVersions, lNumSubtests};
        ReadRows(lines, kRows, report);
        lNumQuestions = report.lNumQuestions;
        lNumVersions = report.lNumVersions;
        lNumSubtests = report.lNumSubtests;
        if (lines.AtEnd()) {
            ShowInvalidFile(u"An error occurred reading the [Report] section of the configuration file. The "
                            u"file ended prematurely.");
            return false;
        }
        result = true;
    } catch (...) { ReportFailure(u"basTemplate.VB_RT_read_report"); }
    return result;
}

void WriteReport(TextWriter& out, clsHTDRDD& oRDD) {
    const auto questions = oRDD.Questions;
    const auto versions = oRDD.Versions;
    Report report{oRDD, questions->Count(), 1, 0, oRDD.Subtests->Count()};
    if (oRDD.ReportType == HTDReportTypeGenericGrade) {
        report.lNumQuestions = questions->NumGraded() + questions->NumSubjective();
    } else {
        if (const std::int32_t sequences = versions->Sequences->Count(); sequences > 0)
            report.lNumSequences = sequences;
        if (versions->VType() != HTDVersionTypeNone) report.lNumVersions = versions->Answers->Count();
    }
    out.WriteLine(u"[Report]");
    WriteRows(out, kRows, report);
    out.WriteLine({});
}

} // namespace htdrdd::basTemplate
