#include "definition_file/scaled_score_section.h"

#include "definition_file/section_rows.h"
#include "foundation/basError.h"
#include "foundation/basPublicText.h"

namespace htdrdd::basTemplate {

bool ScaledScoreKeys::Take(const SectionLines::Pair& pair, Where at) {
    if (const ScaledScoreRow* row = finder_.Find(pair.key))
        row->put(*score_, pair.value, at);
    else if (SameInUpperCase(pair.key, kScaledScoreUnicodeKey))
        ReadValue(pair.value, unicode_, at);
    else
        return false;
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
    AppendValue(out.Line().append(kScaledScoreUnicodeKey) += u'=', basPublic::IsUnicodeBuild());
    out.EndLine(at);
}

} // namespace htdrdd::basTemplate
