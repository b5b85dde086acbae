#include "htdrdd91/model/clsHTDRDDVersions.h"

#include "htdrdd91/foundation/basError.h"

namespace htdrdd {

HTDVersionType clsHTDRDDVersions::VType() const noexcept {
    HTDVersionType result = HTDVersionTypeNone;
    try {
        const std::int32_t sequences = Sequences->Count();
        const std::int32_t answers = Answers->Count();
        const bool told = answers >= 2 && Question >= 1;
        // A single sequence doesn't make a scrambled test: it is the printed order.
        if (sequences < 2 && told)
            result = HTDVersionTypeKey;
        else if (sequences == answers && told)
            result = HTDVersionTypeSequence;
    } catch (...) { ReportFailure(u"clsHTDRDDVersions.VType"); }
    return result;
}

} // namespace htdrdd
