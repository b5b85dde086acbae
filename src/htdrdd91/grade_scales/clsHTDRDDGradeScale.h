/// Grade scales, which map a percentage to a grade.
#pragma once

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/object_list.h"
#include "htdrdd91/grade_scales/clsHTDRDDGradeScaleItem.h"

#include <cstdint>

namespace htdrdd {

/// An ordered list of rows. They should be in descending order of start value, with the last one at 0, but
/// adding enforces no order. A new scale has no rows. Add, Remove, Item and Exists are those of every list:
/// the failure for a bad key, place or index passes to the caller.
class clsHTDRDDGradeScale final : public ObjectList<clsHTDRDDGradeScaleItem> {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDGradeScale"; }

    Text ScaleName;

    /// Adds a row for each pair of elements at the end. Returns false and adds nothing if the bounds of the
    /// arrays differ. Returns false after a failure, such as an array without storage, which isn't reported;
    /// rows added before it stay.
    bool AddArrays(const Array<Text>& sGradesArr, const Array<Text>& sStartValuesArr) noexcept;
    /// AddArrays with the pieces of two delimited texts, which aren't trimmed.
    bool AddDelimitedStrings(TextView sGrades, TextView sStartValues, TextView sDelimiter = u"\t");

    /// The grades, or the start values, as an array from lLowerBound; without storage if there are no rows.
    [[nodiscard]] Array<Text> AsArray(bool bAsStartValues = false, std::int32_t lLowerBound = 1) const;
    /// The same as a text, with the delimiter between them; empty if there are no rows.
    [[nodiscard]] Text AsString(bool bAsStartValues = false, TextView sDelimiter = u"\t") const;

    /// A new scale with its own rows, without keys.
    [[nodiscard]] Ref<clsHTDRDDGradeScale> Copy() const;

    /// Whether each row has a grade, the start values descend, and the last one is 0. Returns false for the
    /// first broken rule, with a complaint, which bVerbose false keeps from the user. lInvalidItem is then
    /// the row, or the first of two rows that don't descend; it is unchanged if there are no rows. False
    /// after a failure, which is reported.
    bool Validate(bool bVerbose = true, std::int32_t* lInvalidItem = nullptr) const noexcept;

    /// Rounds the score to iDecimalPlaces and returns the grade of the first row whose start value isn't
    /// above it; the grade of the last row if there is none; an empty text if there are no rows. A failure,
    /// such as negative places, is reported, and the result is empty.
    [[nodiscard]] Text CalculateGrade(double dPercentScore, std::int16_t iDecimalPlaces = 3) const noexcept;

    /// Writes an exchange file, replacing an existing one, without validating the scale. Returns whether the
    /// file exists afterwards. False after a failure, which is reported, such as a text with characters that
    /// XML can't hold; an existing file is then unchanged.
    bool Export(TextView sFileName) const noexcept;
    /// Replaces the name and the rows by those of an exchange file. Start values become plain numbers with
    /// the region's decimal mark: 90% becomes 90, a text that isn't a number 0. Returns false without a
    /// report, and changes nothing, if the file can't be read or holds no grade scale. False after a failure,
    /// which is reported, such as a comment between the rows; the rows before it stay.
    bool Import(TextView sFileName) noexcept;
};

} // namespace htdrdd
