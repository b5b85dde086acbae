/// Grade scales: from a percentage to a grade.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/object_list.h"
#include "htdrdd91/grade_scales/clsHTDRDDGradeScaleItem.h"

#include <cstdint>

namespace htdrdd {

/// An ordered list of rows, meant to stand in descending order of start value with the last one at 0; adding
/// enforces no order. A new scale has no rows. Add, Remove, Item and Exists are those of every list: a bad
/// key, place or index fails to the caller.
class clsHTDRDDGradeScale final : public ObjectList<clsHTDRDDGradeScaleItem> {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDGradeScale"; }

    Text ScaleName;

    /// Adds a row for each pair of elements behind the rows that are there. False, with nothing added, where
    /// the bounds of the arrays differ; false in silence for a failure such as an array without storage, and
    /// rows added up to then stay.
    bool AddArrays(const Array<Text>& sGradesArr, const Array<Text>& sStartValuesArr) noexcept;
    /// AddArrays of the pieces of two delimited texts, which aren't trimmed.
    bool AddDelimitedStrings(TextView sGrades, TextView sStartValues, TextView sDelimiter = u"\t");

    /// The grades, or the start values, from lLowerBound on; with no rows an array without storage.
    [[nodiscard]] Array<Text> AsArray(bool bAsStartValues = false, std::int32_t lLowerBound = 1) const;
    /// The same with the delimiter between them; with no rows empty.
    [[nodiscard]] Text AsString(bool bAsStartValues = false, TextView sDelimiter = u"\t") const;

    /// A new scale with rows of its own, without keys.
    [[nodiscard]] Ref<clsHTDRDDGradeScale> Copy() const;

    /// Whether each row has a grade, the start values descend, and the last one is 0. False for the first
    /// broken rule, with a complaint, which bVerbose false keeps from the user; lInvalidItem is then the row,
    /// of two that don't descend the first, and keeps its value where there are no rows at all. False after a
    /// failure, which is reported.
    bool Validate(bool bVerbose = true, std::int32_t* lInvalidItem = nullptr) const noexcept;

    /// The grade of the first row whose start value isn't above the score, which is rounded to iDecimalPlaces
    /// first; the last row's where there is none, and an empty text without rows. A failure, such as negative
    /// places, is reported and gives an empty text.
    [[nodiscard]] Text CalculateGrade(double dPercentScore, std::int16_t iDecimalPlaces = 3) const noexcept;

    /// Writes an exchange file; an existing one is replaced. The scale isn't judged. Whether the file is
    /// there then. False after a failure, which is reported, such as a text with characters that XML can't
    /// hold; an existing file is then still what it was.
    bool Export(TextView sFileName) const noexcept;
    /// Replaces name and rows by those of an exchange file. Start values become plain numbers with the
    /// region's decimal mark: 90% is 90, and what is no number 0. False in silence, with nothing changed,
    /// where the file can't be read or is none of a grade scale. False after a failure, which is reported,
    /// such as a comment between the rows; the rows in front of it stay.
    bool Import(TextView sFileName) noexcept;
};

} // namespace htdrdd
