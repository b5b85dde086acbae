/// The questions of a definition.
#pragma once

#include "htdrdd91/base/object_list.h"
#include "htdrdd91/model/clsHTDRDDQuestion.h"

#include <cstdint>

namespace htdrdd {

/// The questions in document order; a question's position is its number. Failures are reported under the
/// member's name, and the result is then 0.
///
/// Each `Num` member counts the questions of a class, each `Next` member walks them: 0 starts, the position
/// that comes back goes in next, and 0 ends. This is meant: a walk may demand more than the count does.
class clsHTDRDDQuestions final : public ObjectList<clsHTDRDDQuestion> {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDQuestions"; }

    [[nodiscard]] std::int32_t NumGraded() const noexcept;
    [[nodiscard]] std::int32_t NextGraded(std::int32_t lCurrentPosition = 0) const noexcept;
    [[nodiscard]] std::int32_t NumPartialCredit() const noexcept;
    [[nodiscard]] std::int32_t NumExtraCredit() const noexcept;
    /// Graded questions with partial credit.
    [[nodiscard]] std::int32_t NextPartialCredit(std::int32_t lCurrentPosition = 0) const noexcept;
    /// Graded or subjective questions with extra credit.
    [[nodiscard]] std::int32_t NextExtraCredit(std::int32_t lCurrentPosition = 0) const noexcept;
    [[nodiscard]] std::int32_t NumSubjective() const noexcept;
    [[nodiscard]] std::int32_t NextSubjective(std::int32_t lCurrentPosition = 0) const noexcept;
    [[nodiscard]] std::int32_t NumTallied() const noexcept;
    [[nodiscard]] std::int32_t NextTallied(std::int32_t lCurrentPosition = 0) const noexcept;

    /// Adds at the end, or before or after an entry, under the key if there is one. A key that is in use and
    /// a place that isn't there are failures; the question isn't added then.
    void Add(Ref<clsHTDRDDQuestion> Item, const NewKey& Key = {}, const Index& Before = {},
             const Index& After = {}) noexcept;
    /// A bad index is a failure. Positions behind move down by one; nothing else is adjusted.
    void Remove(const Index& Index) noexcept;

    /// Position of the first question of a name, 0 if there is none.
    [[nodiscard]] std::int32_t Find(TextView sQuestionName,
                                    Compare eCompare = Compare::IgnoreCase) const noexcept;

private:
    template <class Wanted>
    std::int32_t Number(TextView sLocation, Wanted wanted) const noexcept;
    template <class Wanted>
    std::int32_t Next(std::int32_t lCurrentPosition, TextView sLocation, Wanted wanted) const noexcept;
};

} // namespace htdrdd
