#include "htdrdd91/scaled_scores/clsHTDRDDScaledScoreDB.h"

namespace htdrdd {

void clsHTDRDDScaledScoreDB::Reset() { Assign(*Make<clsHTDRDDScaledScoreDB>()); }

void clsHTDRDDScaledScoreDB::Assign(const clsHTDRDDScaledScoreDB& source) {
    Name = source.Name;
    Catalog = source.Catalog;
    Table = source.Table;
    MinFieldPrimary = source.MinFieldPrimary;
    MaxFieldPrimary = source.MaxFieldPrimary;
    MinFieldSecondary = source.MinFieldSecondary;
    MaxFieldSecondary = source.MaxFieldSecondary;
    ScoreField = source.ScoreField;
    ScoreGrade = source.ScoreGrade;
    DBType = source.DBType;
    Connect = source.Connect;
    DirectoryBased = source.DirectoryBased;
    DSNBased = source.DSNBased;
    DSNName = source.DSNName;
    User = source.User;
    Password = source.Password;
    Valid = source.Valid;
}

} // namespace htdrdd
