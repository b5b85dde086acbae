#include "htdrdd91/model/clsHTDRDDSubtests.h"

#include "htdrdd91/foundation/basError.h"

namespace htdrdd {

void clsHTDRDDSubtests::Add(Ref<clsHTDRDDSubtest> Item, const NewKey& Key, const Index& Before,
                            const Index& After) noexcept {
    try {
        ObjectList::Add(std::move(Item), Key, Before, After);
    } catch (...) { ReportFailure(u"clsHTDRDDSubtests.Add"); }
}

std::int32_t clsHTDRDDSubtests::Find(TextView sSubtest) const noexcept {
    std::int32_t result = 0;
    try {
        result =
            FirstPosition([&](const clsHTDRDDSubtest& subtest) { return subtest.SubtestName == sSubtest; });
    } catch (...) { ReportFailure(u"clsHTDRDDSubtests.Find"); }
    return result;
}

Variant clsHTDRDDSubtests::Call(TextView name, std::span<Variant> arguments) {
    if (!SameText(name, u"Find")) return LateBound::Call(name, arguments);
    if (arguments.size() != 1) throw Failure(Err::ArgumentCount, Where::current());
    return Find(arguments[0].ToText());
}

} // namespace htdrdd
