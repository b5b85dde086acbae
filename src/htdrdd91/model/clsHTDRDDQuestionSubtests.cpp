#include "htdrdd91/model/clsHTDRDDQuestionSubtests.h"

#include "htdrdd91/foundation/basError.h"

#include <algorithm>
#include <limits>

namespace htdrdd {
namespace {

constexpr auto kBefore = [](const auto& slot, std::int32_t lIndex) { return slot.lIndex < lIndex; };

} // namespace

std::vector<clsHTDRDDQuestionSubtests::Slot>::iterator
clsHTDRDDQuestionSubtests::LowerBound(std::int32_t lIndex) {
    return std::lower_bound(slots_.begin(), slots_.end(), lIndex, kBefore);
}

/// The slot, or a null pointer for a plain non-member.
const clsHTDRDDQuestionSubtests::Slot* clsHTDRDDQuestionSubtests::Find(std::int32_t lIndex, Where at) const {
    if (!Exists(lIndex)) throw Failure(Err::NotSet, at);
    const auto slot = std::lower_bound(slots_.begin(), slots_.end(), lIndex, kBefore);
    return slot != slots_.end() && slot->lIndex == lIndex ? &*slot : nullptr;
}

/// The slot, created if it is missing.
clsHTDRDDQuestionSubtests::Slot& clsHTDRDDQuestionSubtests::Made(std::int32_t lIndex, Where at) {
    if (!Exists(lIndex)) throw Failure(Err::NotSet, at);
    auto slot = LowerBound(lIndex);
    if (slot == slots_.end() || slot->lIndex != lIndex) slot = slots_.insert(slot, Slot{.lIndex = lIndex});
    return *slot;
}

void clsHTDRDDQuestionSubtests::AddMany(std::int32_t lNumber, Where at) {
    if (lNumber <= 0) return;
    if (lNumber > std::numeric_limits<std::int32_t>::max() - lCount_) throw Failure(Err::Overflow, at);
    lCount_ += lNumber;
}

void clsHTDRDDQuestionSubtests::Append(bool bInclude) {
    if (bInclude) slots_.reserve(slots_.size() + 1);
    AddMany(1);
    if (bInclude) Made(lCount_, {}).include = true;
}

void clsHTDRDDQuestionSubtests::Add(const Variant& vQuestionSubtest) noexcept {
    try {
        if (const Ref<Object>* object = vQuestionSubtest.AsObject()) {
            const Ref<clsHTDRDDQuestionSubtest> membership(
                dynamic_cast<clsHTDRDDQuestionSubtest*>(object->Get()));
            if (!membership) return;
            slots_.reserve(slots_.size() + 1);
            AddMany(1);
            Slot& slot = Made(lCount_, {});
            slot.holds = Slot::Holds::Reference;
            slot.object = membership;
        } else if (vQuestionSubtest.Is() == Variant::Kind::Boolean) {
            Append(vQuestionSubtest.ToBoolean());
        }
    } catch (...) { ReportFailure(u"clsHTDRDDQuestionSubtests.Add"); }
}

void clsHTDRDDQuestionSubtests::Remove(std::int32_t lIndex) noexcept {
    try {
        if (!Exists(lIndex)) throw Failure(Err::Subscript, Where::current());
        auto slot = LowerBound(lIndex);
        if (slot != slots_.end() && slot->lIndex == lIndex) slot = slots_.erase(slot);
        for (; slot != slots_.end(); ++slot) --slot->lIndex;
        --lCount_;
    } catch (...) { ReportFailure(u"clsHTDRDDQuestionSubtests.Remove"); }
}

void clsHTDRDDQuestionSubtests::RemoveAll() noexcept {
    slots_.clear();
    lCount_ = 0;
}

Ref<clsHTDRDDQuestionSubtest> clsHTDRDDQuestionSubtests::Item(std::int32_t lIndex) noexcept {
    Ref<clsHTDRDDQuestionSubtest> result;
    try {
        if (!Exists(lIndex)) return result;
        Slot& slot = Made(lIndex, {});
        if (slot.holds == Slot::Holds::Values) {
            auto made = Make<clsHTDRDDQuestionSubtest>();
            made->Include = slot.include;
            made->Weight = slot.weight;
            slot.object = std::move(made);
            slot.holds = Slot::Holds::Reference;
        }
        result = slot.object;
    } catch (...) { ReportFailure(u"clsHTDRDDQuestionSubtests.Item"); }
    return result;
}

void clsHTDRDDQuestionSubtests::Item(std::int32_t lIndex, Ref<clsHTDRDDQuestionSubtest> oNew) noexcept {
    try {
        if (!Exists(lIndex)) return;
        Slot& slot = Made(lIndex, {});
        slot.object = std::move(oNew);
        slot.holds = Slot::Holds::Reference;
    } catch (...) { ReportFailure(u"clsHTDRDDQuestionSubtests.Item"); }
}

Array<bool> clsHTDRDDQuestionSubtests::AsArray(std::int32_t lLowerBound) const noexcept {
    Array<bool> result;
    try {
        if (lCount_ == 0) return result;
        std::vector<bool> includes(static_cast<std::size_t>(lCount_));
        for (const Slot& slot : slots_)
            includes[static_cast<std::size_t>(slot.lIndex) - 1] = Includes(slot.lIndex);
        result = Array<bool>(std::move(includes), lLowerBound);
    } catch (...) { ReportFailure(u"clsHTDRDDQuestionSubtests.AsArray"); }
    return result;
}

void clsHTDRDDQuestionSubtests::AddArray(const Array<bool>& bValues) noexcept {
    try {
        for (std::int32_t l = bValues.LowerBound(); l <= bValues.UpperBound(); ++l) Append(bValues.At(l));
    } catch (...) { ReportFailure(u"clsHTDRDDQuestionSubtests.AddArray"); }
}

bool clsHTDRDDQuestionSubtests::Includes(std::int32_t lIndex, Where at) const {
    const Slot* const slot = Find(lIndex, at);
    if (slot == nullptr) return false;
    return slot->holds == Slot::Holds::Reference ? slot->object->Include : slot->include;
}

double clsHTDRDDQuestionSubtests::WeightOf(std::int32_t lIndex, Where at) const {
    const Slot* const slot = Find(lIndex, at);
    if (slot == nullptr) return 1;
    return slot->holds == Slot::Holds::Reference ? slot->object->Weight : slot->weight;
}

void clsHTDRDDQuestionSubtests::SetInclude(std::int32_t lIndex, bool bInclude, Where at) {
    Slot& slot = Made(lIndex, at);
    (slot.holds == Slot::Holds::Reference ? slot.object->Include : slot.include) = bInclude;
}

void clsHTDRDDQuestionSubtests::SetWeight(std::int32_t lIndex, double dWeight, Where at) {
    Slot& slot = Made(lIndex, at);
    (slot.holds == Slot::Holds::Reference ? slot.object->Weight : slot.weight) = dWeight;
}

} // namespace htdrdd
