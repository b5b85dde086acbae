#include "htdrdd91/definition_file/scale_section.h"

#include "htdrdd91/base/array.h"
#include "htdrdd91/definition_file/messages.h"
#include "htdrdd91/definition_file/section_rows.h"
#include "htdrdd91/foundation/basError.h"

namespace htdrdd::basTemplate {
namespace {

struct FiledScale {
    const clsHTDRDDGradeScale& scale;
    TextView decimalMark;
};
using Row = MemberRow<ScaleKeys, FiledScale>;

/// In the order of writing.
constexpr std::array kRows{
    Row{u"ScaleName", [](ScaleKeys& keys, TextView value, Where /*at*/) { keys.scale->ScaleName = value; },
        [](Text& line, const FiledScale& filed, Where /*at*/) { line += filed.scale.ScaleName; }},
    Row{u"NumValues", [](ScaleKeys& keys, TextView value, Where at) { ReadValue(value, keys.numValues, at); },
        [](Text& line, const FiledScale& filed, Where /*at*/) { AppendValue(line, filed.scale.Count()); }},
    Row{u"Grades", [](ScaleKeys& keys, TextView value, Where /*at*/) { keys.grades = Split(value, u"\t"); },
        [](Text& line, const FiledScale& filed, Where /*at*/) { line += filed.scale.AsString(false); }},
    Row{u"StartValues",
        [](ScaleKeys& keys, TextView value, Where /*at*/) { keys.startValues = Split(value, u"\t"); },
        [](Text& line, const FiledScale& filed, Where /*at*/) {
            line += Replaced(filed.scale.AsString(true), filed.decimalMark, u".");
        }},
};

} // namespace

bool ScaleKeys::Take(const SectionLines::Pair& pair, Where at) {
    const Row* const row = RowFinder(kRows).Find(pair.key);
    if (row != nullptr) row->put(*this, pair.value, at);
    return row != nullptr;
}

bool ScaleKeys::AddRows() const {
    return scale->AddArrays(grades, startValues) && scale->Count() == numValues;
}

bool ReadScale(SectionLines& lines, clsHTDRDDGradeScale& oScale) noexcept {
    bool result = false;
    try {
        ScaleKeys keys{Ref(&oScale)};
        lines.EnterSection();
        for (SectionLines::Pair pair; lines.NextPair(pair);) keys.Take(pair);
        if (!keys.AddRows()) {
            ShowInvalidFile(u"An error occurred reading the [Scale] section of the configuration file. The "
                            u"number of scale items and values found did not match the NumValues Parameter.");
            return false;
        }
        if (keys.numValues == 0) {
            ShowInvalidFile(u"An error occurred reading the [Scale] section of the configuration file. The "
                            u"NumValues parameter was zero.");
            return false;
        }
        result = true;
    } catch (...) { ReportFailure(u"basTemplate.VB_RT_read_scale"); }
    return result;
}

void WriteScaleKeys(TextWriter& out, const clsHTDRDDGradeScale& oScale, TextView sDecimalMark, Where at) {
    WriteRows(out, kRows, FiledScale{oScale, sDecimalMark}, at);
}

} // namespace htdrdd::basTemplate
