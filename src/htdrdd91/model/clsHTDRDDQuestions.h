/// The questions of a definition.
#pragma once

#include "htdrdd91/base/object_list.h"
#include "htdrdd91/model/clsHTDRDDQuestion.h"

#include <cstdint>

namespace htdrdd {

/// The questions in document order; a question's position is its number. A failure is reported under the
/// member's name, and the result is 0.
///
/// Each `Num` member counts the questions of a class, and each `Next` member walks them: pass 0 to begin and
/// then each result, until the result is 0. This is meant: a walk may demand more than the count does.
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

    /// Adds at the end, or before or after an entry, with the key if there is one. A key in use and a missing
    /// entry in Before or After are failures; the question isn't added.
    void Add(Ref<clsHTDRDDQuestion> Item, const NewKey& Key = {}, const Index& Before = {},
             const Index& After = {}) noexcept;
    /// A bad index is a failure. Later positions move down by one; nothing else is adjusted.
    void Remove(const Index& Index) noexcept;

    /// Position of the first question with the name, 0 if there is none.
    [[nodiscard]] std::int32_t Find(TextView sQuestionName,
                                    Compare eCompare = Compare::IgnoreCase) const noexcept;

private:
    template <class Wanted>
    std::int32_t Number(TextView sLocation, Wanted wanted) const noexcept;
    template <class Wanted>
    std::int32_t Next(std::int32_t lCurrentPosition, TextView sLocation, Wanted wanted) const noexcept;
};

} // namespace htdrdd
