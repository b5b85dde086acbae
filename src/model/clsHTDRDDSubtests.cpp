#include "model/clsHTDRDDSubtests.h"

#include "foundation/basError.h"

namespace htdrdd {

void clsHTDRDDSubtests::Add(Ref<clsHTDRDDSubtest> Item, std::optional<TextView> Key, const Index& Before,
                            const Index& After) noexcept {
    try {
        ObjectList::Add(std::move(Item), Key, Before, After);
    } catch (...) { ReportFailure(u"HTDRdd91 - clsHTDRDDSubtests.Add"); }
}

std::int32_t clsHTDRDDSubtests::Find(TextView sSubtest) const noexcept {
    std::int32_t result = 0;
    try {
        result =
            FirstPosition([&](const clsHTDRDDSubtest& subtest) { return subtest.SubtestName == sSubtest; });
    } catch (...) { ReportFailure(u"HTDRdd91 - clsHTDRDDSubtests.Find"); }
    return result;
}

} // namespace htdrdd
