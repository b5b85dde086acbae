/// The subtests of a definition.
#pragma once

#include "htdrdd91/base/late_bound.h"
#include "htdrdd91/base/object_list.h"
#include "htdrdd91/model/clsHTDRDDSubtest.h"

#include <cstdint>

namespace htdrdd {

/// The subtests; position 1 is the overall one. Removing one doesn't touch the memberships in the questions.
/// A bad index fails to the caller.
class clsHTDRDDSubtests final : public ObjectList<clsHTDRDDSubtest, LateBound> {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDSubtests"; }

    /// Adds at the end, or before or after an entry, under the key if there is one. A key that is in use and
    /// a place that isn't there are failures: reported, and nothing is added.
    void Add(Ref<clsHTDRDDSubtest> Item, const NewKey& Key = {}, const Index& Before = {},
             const Index& After = {}) noexcept;

    /// Position of the first subtest of a name, case counting; 0 if there is none. A failure is reported.
    [[nodiscard]] std::int32_t Find(TextView sSubtest) const noexcept;

    /// Bound by name: Find.
    Variant Call(TextView name, std::span<Variant> arguments) override;
};

} // namespace htdrdd
