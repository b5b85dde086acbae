/// The learning objectives of a definition.
#pragma once

#include "htdrdd91/base/late_bound.h"
#include "htdrdd91/base/object_list.h"
#include "htdrdd91/model/clsHTDRDDSubtest.h"

#include <cstdint>

namespace htdrdd {

/// The learning objectives; position 1 is the overall one. Removing one doesn't change the memberships of
/// questions. The failure for a bad index passes to the caller.
class clsHTDRDDSubtests final : public ObjectList<clsHTDRDDSubtest, LateBound> {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDSubtests"; }

    /// Adds at the end, or before or after an entry, with the key if there is one. A key in use and a missing
    /// entry in Before or After are failures: reported, and nothing is added.
    void Add(Ref<clsHTDRDDSubtest> Item, const NewKey& Key = {}, const Index& Before = {},
             const Index& After = {}) noexcept;

    /// Position of the first learning objective with the name (case-sensitive), or 0. A failure is reported.
    [[nodiscard]] std::int32_t Find(TextView sSubtest) const noexcept;

    /// The member bound by name: Find.
    Variant Call(TextView name, std::span<Variant> arguments) override;
};

} // namespace htdrdd
