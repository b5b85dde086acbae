#include "definition_file/report_section.h"

#include "definition_file/messages.h"
#include "definition_file/section_rows.h"
#include "foundation/basError.h"

namespace htdrdd::basTemplate {
namespace {

struct Report {
    clsHTDRDD& rdd;
    std::int32_t& lNumQuestions;
    std::int32_t& lNumVersions;
    std::int32_t& lNumSubtests;
};
using Row = MemberRow<Report>;

template <auto Field>
constexpr Row Own(TextView key) {
    return {key, [](Report& report, TextView value, Where at) { ReadValue(value, report.rdd.*Field, at); }};
}

void IgnoreValue(Report& /*report*/, TextView /*value*/, Where /*at*/) {}

/// Older files name all learning objectives here.
void ReadSubtestNames(Report& report, TextView value, Where /*at*/) {
    EachPiece(value, u"\t", [&](TextView name) {
        if (name.empty()) return;
        auto subtest = Make<clsHTDRDDSubtest>();
        subtest->SubtestName = name;
        report.rdd.Subtests->Add(std::move(subtest));
    });
}

/// In the order of writing; the last two stand in older files only.
constexpr std::array kRows{
    Own<&clsHTDRDD::TemplateName>(u"TemplateName"),
    Row{u"NumQuestions", [](Report& r, TextView value, Where at) { ReadValue(value, r.lNumQuestions, at); }},
    Row{u"NumSequences", IgnoreValue},
    Row{u"NumVersions", [](Report& r, TextView value, Where at) { ReadValue(value, r.lNumVersions, at); }},
    Row{u"NumSubtests", [](Report& r, TextView value, Where at) { ReadValue(value, r.lNumSubtests, at); }},
    Own<&clsHTDRDD::NumPages>(u"NumPages"),
    Row{u"Version", IgnoreValue},
    // The document holds any 32-bit value, a file only a 16-bit one.
    Row{u"Type",
        [](Report& r, TextView value, Where at) { ReadValueAs<std::int16_t>(value, r.rdd.ReportType, at); }},
    Own<&clsHTDRDD::Description>(u"Description"),
    Own<&clsHTDRDD::Notes>(u"Notes"),
    Own<&clsHTDRDD::CustomHeader>(u"CustomHeader"),
    Row{u"SequenceQuestion",
        [](Report& r, TextView value, Where at) { ReadValue(value, r.rdd.Versions->Question, at); }},
    Row{u"SubtestName", ReadSubtestNames},
};

} // namespace

bool VB_RT_read_report(SectionLines& lines, clsHTDRDD& oRDD, std::int32_t& lNumQuestions,
                       std::int32_t& lNumVersions, std::int32_t& lNumSubtests) noexcept {
    bool result = false;
    try {
        Report report{oRDD, lNumQuestions, lNumVersions, lNumSubtests};
        ReadRows(lines, kRows, report);
        if (lines.AtEnd()) {
            ShowInvalidFile(u"An error occurred reading the [Report] section of the configuration file. The "
                            u"file ended prematurely.");
            return false;
        }
        result = true;
    } catch (...) { ReportFailure(u"HTDRdd91 - basTemplate.VB_RT_read_report"); }
    return result;
}

} // namespace htdrdd::basTemplate
