#include "htdrdd91/definition_file/scaled_score_section.h"

#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/scaled_scores/scaled_score_members.h"

namespace htdrdd::basTemplate {

bool ReadScaledScore(SectionLines& lines, clsHTDRDDScaledScore& oScaledScore) noexcept {
    bool result = false;
    try {
        ScaledScorePairs pairs{Ref(&oScaledScore)};
        lines.EnterSection();
        for (SectionLines::Pair pair; lines.NextPair(pair);) pairs.Take(pair.key, pair.value);
        pairs.Decipher();
        result = true;
    } catch (...) { ReportFailure(u"basTemplate.VB_RT_read_scaled_score"); }
    return result;
}

} // namespace htdrdd::basTemplate
