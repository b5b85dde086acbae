/// Memberships of a question.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/object.h"
#include "htdrdd91/base/variant.h"
#include "htdrdd91/model/clsHTDRDDQuestionSubtest.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace htdrdd {

/// A list that runs parallel to the definition's subtests: item n is the membership in subtest n. Only what
/// differs from a plain non-member takes room; a membership becomes an object when it is asked for as one.
/// Failures are reported under the member's name.
class clsHTDRDDQuestionSubtests final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDQuestionSubtests"; }

    [[nodiscard]] std::int32_t Count() const noexcept { return lCount_; }

    /// Adds a clsHTDRDDQuestionSubtest as it is, or a new one for a boolean, with that Include and weight 1.
    /// Anything else is ignored.
    void Add(const Variant& vQuestionSubtest) noexcept;
    void Remove(std::int32_t lIndex) noexcept;
    void RemoveAll() noexcept;

    /// The membership, or an empty reference where there is none. The same object each time.
    [[nodiscard]] Ref<clsHTDRDDQuestionSubtest> Item(std::int32_t lIndex) noexcept;
    /// Replaces a membership; where there is none, nothing happens.
    void Item(std::int32_t lIndex, Ref<clsHTDRDDQuestionSubtest> oNew) noexcept;
    [[nodiscard]] bool Exists(std::int32_t lIndex) const noexcept { return lIndex >= 1 && lIndex <= lCount_; }

    /// The Include of each membership from lLowerBound on; with no items an array without storage.
    [[nodiscard]] Array<bool> AsArray(std::int32_t lLowerBound = 1) const noexcept;
    /// Adds a new membership with weight 1 for each element.
    void AddArray(const Array<bool>& bValues) noexcept;

    /// What Item(l)->Include and Item(l)->Weight say, without an object; fail with 91 where there is none.
    [[nodiscard]] bool Includes(std::int32_t lIndex, Where at = Where::current()) const;
    [[nodiscard]] double WeightOf(std::int32_t lIndex, Where at = Where::current()) const;
    /// Calls `visit(l, included)` in order for each membership that isn't a plain non-member. `included` has
    /// no value where Includes fails, for an empty reference.
    template <class Visit>
    void EachMembership(Visit visit) const {
        for (const Slot& slot : slots_) {
            const bool isReference = slot.holds == Slot::Holds::Reference;
            if (isReference && !slot.object)
                visit(slot.lIndex, std::optional<bool>());
            else
                visit(slot.lIndex, std::optional(isReference ? slot.object->Include : slot.include));
        }
    }
    void SetInclude(std::int32_t lIndex, bool bInclude, Where at = Where::current());
    void SetWeight(std::int32_t lIndex, double dWeight, Where at = Where::current());

    /// Adds that many memberships without Include, at no cost; none for a number of 0 or less.
    void AddMany(std::int32_t lNumber, Where at = Where::current());

private:
    /// A membership that isn't plain.
    struct Slot {
        enum class Holds : std::uint8_t { Values, Reference };
        std::int32_t lIndex;
        Holds holds = Holds::Values;
        bool include = false;
        double weight = 1;
        Ref<clsHTDRDDQuestionSubtest> object{}; ///< where it holds a reference; perhaps an empty one
    };

    [[nodiscard]] std::vector<Slot>::iterator LowerBound(std::int32_t lIndex);
    [[nodiscard]] const Slot* Find(std::int32_t lIndex, Where at) const;
    Slot& Made(std::int32_t lIndex, Where at);
    void Append(bool bInclude);

    std::int32_t lCount_ = 0;
    std::vector<Slot> slots_; ///< in order of lIndex
};

} // namespace htdrdd
