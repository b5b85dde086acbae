#include "htdrdd91/scaled_scores/clsHTDScaledScoreManager.h"

#include "htdrdd91/foundation/record_library_members.h"

namespace htdrdd {

template class RecordLibrary<clsHTDRDDScaledScore, u"clsHTDScaledScoreManager">;

Text clsHTDScaledScoreManager::ToText(const Ref<clsHTDRDDScaledScore>& oScaledScore) const {
    return oScaledScore->ToString();
}

Ref<clsHTDRDDScaledScore> clsHTDScaledScoreManager::FromText(TextView sScaledScore) const {
    auto score = Make<clsHTDRDDScaledScore>();
    return score->FromString(sScaledScore) ? score : nullptr;
}

void clsHTDScaledScoreManager::Load(TextView sPiece) {
    const auto score = FromText(sPiece);
    if (!score) return;
    Text name = score->ScaledScoreName;
    Add(name, score);
}

} // namespace htdrdd
