#include "htdrdd91/scaled_scores/scaled_score_members.h"

#include "htdrdd91/foundation/basPublicCipher.h"

namespace htdrdd {
namespace {

template <class Property>
void DecipherProperty(Property& property, bool bUnicode) {
    if (property.empty()) return;
    property = basPublic::Decrypt(property);
    if (bUnicode) property = basPublic::HexToUnicode(property);
}

} // namespace

void DecipherConnection(const clsHTDRDDScaledScore& score, bool bUnicode) {
    const Ref<clsHTDRDDScaledScoreDB> DB = score.DB; // held: a report may release it
    DecipherProperty(DB->Connect, bUnicode);
    DecipherProperty(DB->User, bUnicode);
    DecipherProperty(DB->Password, bUnicode);
}

} // namespace htdrdd
