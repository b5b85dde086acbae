/// Connection settings of a scaled score.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/foundation/properties.h"

#include <cstdint>

namespace htdrdd {

/// Where the table of a scaled score is and what its columns are called. The library only keeps these
/// settings; opening the database is the host's affair.
class clsHTDRDDScaledScoreDB final : public Object {
public:
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDDScaledScoreDB"; }

    Text Name;
    Text Catalog;
    Text Table;
    Text MinFieldPrimary; ///< columns with the bounds of the lookup
    Text MaxFieldPrimary;
    Text MinFieldSecondary;
    Text MaxFieldSecondary;
    Text ScoreField;          ///< column that gives the scaled score
    Text ScoreGrade;          ///< column that gives the grade
    std::int16_t DBType = -1; ///< a number that the host assigns to a kind of database; -1: none
    TrimmedText Connect;
    bool DirectoryBased = false;
    bool DSNBased = false; ///< reached through DSNName
    Text DSNName;
    TrimmedText User;
    TextTrimmedOnRead Password;
    bool Valid = true; ///< nothing in this library sets it to false

    /// Gives every member its initial value.
    void Reset();
    /// The same; outside hosts know it by this name, too.
    void Class_Initialize() { Reset(); }
    /// Takes every member over through its property.
    void Assign(const clsHTDRDDScaledScoreDB& source);
};

} // namespace htdrdd
