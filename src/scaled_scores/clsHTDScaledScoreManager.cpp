#include "scaled_scores/clsHTDScaledScoreManager.h"

namespace htdrdd {

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
