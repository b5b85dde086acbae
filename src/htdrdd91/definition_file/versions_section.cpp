#include "htdrdd91/definition_file/versions_section.h"

#include "htdrdd91/definition_file/messages.h"
#include "htdrdd91/definition_file/section_rows.h"
#include "htdrdd91/foundation/basError.h"

namespace htdrdd::basTemplate {
namespace {

/// In the order of writing; the sequences follow.
constexpr std::array kRows{
    PlainRow<clsHTDRDDVersions, &clsHTDRDDVersions::Question>(u"Question"),
    PlainRow<clsHTDRDDVersions, &clsHTDRDDVersions::Answers>(u"Answers"),
};
constexpr TextView kSequenceKey = u"Sequence";

/// Adds the positions of a list. Returns false, with a stop message, if the sequence doesn't then have as
/// many positions as there are questions.
bool AddOrder(clsHTDRDDSequence& sequence, TextView order, std::int32_t lNumQuestions,
              Where at = Where::current()) {
    sequence.AddDelimitedString(order, u"\t", at);
    if (sequence.Count() == lNumQuestions) return true;
    ShowInvalidFile(
        u"An error occurred reading the [Sequence] section of the configuration file. The number of "
        u"questions in the sequence do not match the number of questions in the answer key file.",
        at);
    return false;
}

} // namespace

bool ReadVersions(SectionLines& lines, clsHTDRDDVersions& oVersions, std::int32_t lNumQuestions) noexcept {
    bool result = false;
    try {
        const auto held = Held(oVersions);
        RowFinder finder(kRows);
        lines.EnterSection();
        for (SectionLines::Pair pair; lines.NextPair(pair);) {
            if (const auto* row = finder.Find(pair.key)) {
                row->put(oVersions, pair.value, Where::current());
            } else if (SameInUpperCase(pair.key, kSequenceKey)) {
                auto sequence = Make<clsHTDRDDSequence>();
                if (!AddOrder(*sequence, pair.value, lNumQuestions)) return false;
                oVersions.Sequences->Add(std::move(sequence));
            }
        }
        result = true;
    } catch (...) { ReportFailure(u"basTemplate.VB_RT_read_versions"); }
    return result;
}

bool ReadSequence(SectionLines& lines, clsHTDRDDVersions& oVersions, std::int32_t lNumQuestions) noexcept {
    bool result = false;
    try {
        const auto held = Held(oVersions);
        auto sequence = Make<clsHTDRDDSequence>();
        lines.EnterSection();
        for (SectionLines::Pair pair; lines.NextPair(pair);) {
            if (SameInUpperCase(pair.key, u"Answer")) {
                oVersions.Answers->Add(pair.value);
            } else if (SameInUpperCase(pair.key, u"Order")) {
                if (!AddOrder(*sequence, pair.value, lNumQuestions)) return false;
            }
        }
        oVersions.Sequences->Add(std::move(sequence));
        result = true;
    } catch (...) { ReportFailure(u"basTemplate.VB_RT_read_sequence"); }
    return result;
}

void WriteVersions(TextWriter& out, const clsHTDRDDVersions& oVersions) {
    const auto held = Held(oVersions);
    out.WriteLine(u"[Versions]");
    WriteRows(out, kRows, oVersions);
    if (oVersions.VType() == HTDVersionTypeSequence) {
        for (std::int32_t l = 1; l <= oVersions.Sequences->Count(); ++l) {
            out.Line().append(kSequenceKey).append(u"=").append(oVersions.Sequences->Item(l)->AsString());
            out.EndLine();
        }
    }
    out.WriteLine({});
}

} // namespace htdrdd::basTemplate
