/// The members of a scaled score as they stand in files.
#pragma once

#include "foundation/basPublicCipher.h"
#include "foundation/member_rows.h"
#include "scaled_scores/clsHTDRDDScaledScore.h"

#include <array>

namespace htdrdd {

using ScaledScoreRow = MemberRow<clsHTDRDDScaledScore>;

template <auto Field>
constexpr ScaledScoreRow OfScore(TextView key) {
    return PlainRow<clsHTDRDDScaledScore, Field>(key);
}
template <auto Field>
constexpr ScaledScoreRow OfDB(TextView key) {
    return {key,
            [](clsHTDRDDScaledScore& score, TextView value, Where at) {
                ReadValue(value, (*score.DB).*Field, at);
            },
            [](Text& line, const clsHTDRDDScaledScore& score, Where /*at*/) {
                AppendValue(line, (*score.DB).*Field);
            }};
}
/// Written enciphered. What is read is put in as it stands and deciphered at the end.
template <auto Field>
constexpr ScaledScoreRow OfSecret(TextView key) {
    ScaledScoreRow row = OfDB<Field>(key);
    row.append = [](Text& line, const clsHTDRDDScaledScore& score, Where /*at*/) {
        line += basPublic::Encrypt((*score.DB).*Field);
    };
    return row;
}

/// In the order of writing.
inline constexpr std::array kScaledScoreMembers{
    OfScore<&clsHTDRDDScaledScore::ScaledScoreName>(u"ScaledScoreName"),
    OfScore<&clsHTDRDDScaledScore::ScaledScoreCriteriaPrimary>(u"ScaledScoreCriteriaPrimary"),
    OfScore<&clsHTDRDDScaledScore::ScaledScoreCriteriaSecondary>(u"ScaledScoreCriteriaSecondary"),
    OfScore<&clsHTDRDDScaledScore::ScaledScoreValues>(u"ScaledScoreValues"),
    OfScore<&clsHTDRDDScaledScore::LearningObjectivePrimary>(u"ScaledScoreLearningObjectivePrimary"),
    OfScore<&clsHTDRDDScaledScore::LearningObjectiveSecondary>(u"ScaledScoreLearningObjectiveSecondary"),
    OfScore<&clsHTDRDDScaledScore::Precision>(u"ScaledScorePrecision"),
    OfDB<&clsHTDRDDScaledScoreDB::Name>(u"ScaledScoreDBName"),
    OfDB<&clsHTDRDDScaledScoreDB::Catalog>(u"ScaledScoreDBCatalog"),
    OfDB<&clsHTDRDDScaledScoreDB::Table>(u"ScaledScoreDBTable"),
    OfDB<&clsHTDRDDScaledScoreDB::MinFieldPrimary>(u"ScaledScoreDBMinFieldPrimary"),
    OfDB<&clsHTDRDDScaledScoreDB::MaxFieldPrimary>(u"ScaledScoreDBMaxFieldPrimary"),
    OfDB<&clsHTDRDDScaledScoreDB::MinFieldSecondary>(u"ScaledScoreDBMinFieldSecondary"),
    OfDB<&clsHTDRDDScaledScoreDB::MaxFieldSecondary>(u"ScaledScoreDBMaxFieldSecondary"),
    OfDB<&clsHTDRDDScaledScoreDB::ScoreField>(u"ScaledScoreDBScoreField"),
    OfDB<&clsHTDRDDScaledScoreDB::ScoreGrade>(u"ScaledScoreDBScoreGrade"),
    OfDB<&clsHTDRDDScaledScoreDB::DBType>(u"ScaledScoreDBType"),
    OfDB<&clsHTDRDDScaledScoreDB::DSNBased>(u"ScaledScoreDBDSNBased"),
    OfDB<&clsHTDRDDScaledScoreDB::DirectoryBased>(u"ScaledScoreDBDirectoryBased"),
    OfDB<&clsHTDRDDScaledScoreDB::DSNName>(u"ScaledScoreDBDSNName"),
    OfSecret<&clsHTDRDDScaledScoreDB::User>(u"ScaledScoreDBUser"),
    OfSecret<&clsHTDRDDScaledScoreDB::Password>(u"ScaledScoreDBPassword"),
    OfSecret<&clsHTDRDDScaledScoreDB::Connect>(u"ScaledScoreDBConnect"),
};
static_assert(kScaledScoreMembers.size() == 23);

/// Tells whether the enciphered texts are in hexadecimal form. It belongs to no member and stands behind
/// them.
inline constexpr TextView kScaledScoreUnicodeKey = u"ScaledScoreDBUnicode";

/// Deciphers Connect, User and Password, in that order, where they aren't empty. A text that isn't enciphered
/// is reported and becomes empty. Fails with 91 without a DB.
void DecipherConnection(const clsHTDRDDScaledScore& score, bool bUnicode);

} // namespace htdrdd
