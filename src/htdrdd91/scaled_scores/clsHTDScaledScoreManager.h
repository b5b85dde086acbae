/// Libraries of scaled scores.
#pragma once

#include "htdrdd91/foundation/record_library.h"
#include "htdrdd91/scaled_scores/clsHTDRDDScaledScore.h"

namespace htdrdd {

extern template class RecordLibrary<clsHTDRDDScaledScore, u"clsHTDScaledScoreManager">;

/// Scaled scores, each stored as its ToString text. Records from Item have DB->Valid true, since the text
/// doesn't contain it. LoadFromString skips a piece that can't be read; an empty piece is a cleared record
/// under the empty key.
class clsHTDScaledScoreManager final
    : public RecordLibrary<clsHTDRDDScaledScore, u"clsHTDScaledScoreManager"> {
private:
    [[nodiscard]] Text ToText(const Ref<clsHTDRDDScaledScore>& oScaledScore) const override;
    [[nodiscard]] Ref<clsHTDRDDScaledScore> FromText(TextView sScaledScore) const override;
    void Load(TextView sPiece) override;
};

} // namespace htdrdd
