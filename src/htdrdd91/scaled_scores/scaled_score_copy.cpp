#include "htdrdd91/foundation/basError.h"
#include "htdrdd91/scaled_scores/scaled_score_list.h"

namespace htdrdd {

void clsHTDRDDScaledScoreDB::Reset() { Assign(*Make<clsHTDRDDScaledScoreDB>()); }

void clsHTDRDDScaledScoreDB::Assign(const clsHTDRDDScaledScoreDB& source) {
    EachMember<clsHTDRDDScaledScoreDB>([&](auto row) { this->*row.member = source.*row.member; });
}

Ref<clsHTDRDDScaledScore> clsHTDRDDScaledScore::Copy() const noexcept {
    Ref<clsHTDRDDScaledScore> result;
    try {
        auto copy = Make<clsHTDRDDScaledScore>();
        EachMember<clsHTDRDDScaledScore>([&](auto row) {
            if constexpr (row.name == u"DB")
                copy->DB->Assign(*DB);
            else
                (*copy).*row.member = this->*row.member;
        });
        result = std::move(copy);
    } catch (...) { ReportFailure(u"clsHTDRDDScaledScore.Copy"); }
    return result;
}

} // namespace htdrdd
