#include "definition_file/scaled_score_section.h"

#include "foundation/basError.h"
#include "scaled_scores/scaled_score_members.h"

namespace htdrdd::basTemplate {

bool VB_RT_read_scaled_score(SectionLines& lines, clsHTDRDDScaledScore& oScaledScore) noexcept {
    bool result = false;
    try {
        ScaledScorePairs pairs{Ref(&oScaledScore)};
        lines.EnterSection();
        for (SectionLines::Pair pair; lines.NextPair(pair);) pairs.Take(pair.key, pair.value);
        pairs.Decipher();
        result = true;
    } catch (...) { ReportFailure(u"HTDRdd91 - basTemplate.VB_RT_read_scaled_score"); }
    return result;
}

} // namespace htdrdd::basTemplate
