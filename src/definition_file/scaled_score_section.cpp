#include "definition_file/scaled_score_section.h"

#include "foundation/basError.h"

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

} // namespace htdrdd::basTemplate
