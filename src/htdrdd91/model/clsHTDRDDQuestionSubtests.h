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

/// A list parallel to the definition's learning objectives: item n is the membership in learning objective n.
/// A plain non-member (Include false, weight 1) takes no memory; a membership becomes an object when Item
/// returns it. Failures are reported under the member's name.
class clsHTDRDDQuestionSubtests final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDQuestionSubtests"; }

    [[nodiscard]] std::int32_t Count() const noexcept { return lCount_; }

    /// Adds a clsHTDRDDQuestionSubtest itself, or for a boolean a new one with that Include and weight 1.
    /// Ignores any other value.
    void Add(const Variant& vQuestionSubtest) noexcept;
    void Remove(std::int32_t lIndex) noexcept;
    void RemoveAll() noexcept;

    /// The membership, or an empty reference if there is none. The same object each time.
    [[nodiscard]] Ref<clsHTDRDDQuestionSubtest> Item(std::int32_t lIndex) noexcept;
    /// Replaces a membership; does nothing if there is none.
    void Item(std::int32_t lIndex, Ref<clsHTDRDDQuestionSubtest> oNew) noexcept;
    [[nodiscard]] bool Exists(std::int32_t lIndex) const noexcept { return lIndex >= 1 && lIndex <= lCount_; }

    /// The Include of each membership as an array from lLowerBound; without storage if there are no items.
    [[nodiscard]] Array<bool> AsArray(std::int32_t lLowerBound = 1) const noexcept;
    /// Adds a new membership with weight 1 for each element.
    void AddArray(const Array<bool>& bValues) noexcept;

    /// Item(l)->Include and Item(l)->Weight without creating an object; fail with 91 if there is no
    /// membership.
    [[nodiscard]] bool Includes(std::int32_t lIndex, Where at = Where::current()) const;
    [[nodiscard]] double WeightOf(std::int32_t lIndex, Where at = Where::current()) const;
    /// Calls `visit(l, included)` in order for each membership that isn't a plain non-member. `included` is
    /// std::nullopt for an empty reference, for which Includes fails.
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

    /// Adds lNumber memberships without Include, at no cost; none if lNumber is 0 or less.
    void AddMany(std::int32_t lNumber, Where at = Where::current());

private:
    /// A membership other than a plain non-member.
    struct Slot {
        enum class Holds : std::uint8_t { Values, Reference };
        std::int32_t lIndex;
        Holds holds = Holds::Values;
        bool include = false;
        double weight = 1;
        Ref<clsHTDRDDQuestionSubtest> object{}; ///< if it holds a reference; may be empty
    };

    [[nodiscard]] std::vector<Slot>::iterator LowerBound(std::int32_t lIndex);
    [[nodiscard]] const Slot* Find(std::int32_t lIndex, Where at) const;
    Slot& Made(std::int32_t lIndex, Where at);
    void Append(bool bInclude);

    std::int32_t lCount_ = 0;
    std::vector<Slot> slots_; ///< in order of lIndex
};

} // namespace htdrdd
