#include "definition_file/scaled_score_section.h"

#include "definition_file/section_rows.h"
#include "foundation/basError.h"
#include "foundation/basPublicText.h"

namespace htdrdd::basTemplate {

bool ScaledScoreKeys::Take(const SectionLines::Pair& pair, Where at) {
    const ScaledScoreRow* const row = finder_.Find(pair.key);
    if (row == nullptr) return false;
    if (row->form == ScaledScoreRow::Form::Mark)
        ReadValue(pair.value, unicode_, at);
    else
        row->put(*score_, pair.value, at);
    return true;
}

bool VB_RT_read_scaled_score(SectionLines& lines, clsHTDRDDScaledScore& oScaledScore) noexcept {
    bool result = false;
    try {
        ScaledScoreKeys keys{Ref(&oScaledScore)};
        lines.EnterSection();
        for (SectionLines::Pair pair; lines.NextPair(pair);) keys.Take(pair);
        keys.Decipher();
        result = true;
    } catch (...) { ReportFailure(u"HTDRdd91 - basTemplate.VB_RT_read_scaled_score"); }
    return result;
}

void WriteScaledScoreKeys(TextWriter& out, const clsHTDRDDScaledScore& oScaledScore, Where at) {
    WriteRows(out, kScaledScoreMembers, oScaledScore, at);
}

} // namespace htdrdd::basTemplate
