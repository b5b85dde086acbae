/// Connection settings of a scaled score.
#pragma once

#include "htdrdd91/base/object.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/foundation/properties.h"

#include <cstdint>

namespace htdrdd {

/// The location of the table of a scaled score and the names of its columns. The library only stores these
/// settings; the host opens the database.
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
    Text ScoreField;          ///< column with the scaled score
    Text ScoreGrade;          ///< column with the grade
    std::int16_t DBType = -1; ///< a number that the host assigns to a kind of database; -1: none
    TrimmedText Connect;
    bool DirectoryBased = false;
    bool DSNBased = false; ///< reached through DSNName
    Text DSNName;
    TrimmedText User;
    TextTrimmedOnRead Password;
    bool Valid = true; ///< this library never sets it to false

    /// Sets every member to its initial value.
    void Reset();
    /// The same, under the name that outside hosts know.
    void Class_Initialize() { Reset(); }
    /// Copies every member through its property.
    void Assign(const clsHTDRDDScaledScoreDB& source);
};

} // namespace htdrdd
