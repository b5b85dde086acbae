/// The members of a scaled score, as files hold them.
#pragma once

#include "htdrdd91/foundation/basPublicCipher.h"
#include "htdrdd91/foundation/basPublicText.h"
#include "htdrdd91/foundation/member_rows.h"
#include "htdrdd91/scaled_scores/scaled_score_list.h"

#include <array>
#include <type_traits>
#include <utility>

namespace htdrdd {

/// A row of the three written forms of a scaled score. The section of definition files and the string form
/// use the key, exchange files the attribute.
struct ScaledScoreRow : MemberRow<clsHTDRDDScaledScore> {
    enum class Form {
        Plain,
        Flag,
        Enciphered, ///< written enciphered; put stores the value unchanged
        Mark,       ///< of no member: whether enciphered texts are in hexadecimal form
    };
    TextView attribute;
    Form form = Form::Plain;
};

template <auto Field>
constexpr ScaledScoreRow OfScore(TextView key, TextView attribute) {
    return {PlainRow<clsHTDRDDScaledScore, Field>(key), attribute};
}
template <auto Field>
constexpr ScaledScoreRow OfDB(TextView key, TextView attribute) {
    constexpr bool isFlag = std::is_same_v<decltype(Field), bool clsHTDRDDScaledScoreDB::*>;
    return {{key,
             [](clsHTDRDDScaledScore& score, TextView value, Where at) {
                 ReadValue(value, (*score.DB).*Field, at);
             },
             [](Text& line, const clsHTDRDDScaledScore& score, Where /*at*/) {
                 AppendValue(line, (*score.DB).*Field);
             }},
            attribute,
            isFlag ? ScaledScoreRow::Form::Flag : ScaledScoreRow::Form::Plain};
}
template <auto Field>
constexpr ScaledScoreRow OfSecret(TextView key, TextView attribute) {
    ScaledScoreRow row = OfDB<Field>(key, attribute);
    row.form = ScaledScoreRow::Form::Enciphered;
    row.append = [](Text& line, const clsHTDRDDScaledScore& score, Where /*at*/) {
        line += basPublic::Encrypt((*score.DB).*Field);
    };
    return row;
}
constexpr ScaledScoreRow OfMark(TextView key, TextView attribute) {
    return {{key, [](clsHTDRDDScaledScore& /*score*/, TextView /*value*/, Where /*at*/) {},
             [](Text& line, const clsHTDRDDScaledScore& /*score*/, Where /*at*/) {
                 AppendValue(line, basPublic::IsUnicodeBuild());
             }},
            attribute,
            ScaledScoreRow::Form::Mark};
}

/// In the order of writing.
inline constexpr auto kScaledScoreMembers = [] {
    using Score = clsHTDRDDScaledScore;
    using DB = clsHTDRDDScaledScoreDB;
    return std::array{
        OfScore<&Score::ScaledScoreName>(u"ScaledScoreName", u"Name"),
        OfScore<&Score::ScaledScoreCriteriaPrimary>(u"ScaledScoreCriteriaPrimary", u"CriteriaPrimary"),
        OfScore<&Score::ScaledScoreCriteriaSecondary>(u"ScaledScoreCriteriaSecondary", u"CriteriaSecondary"),
        OfScore<&Score::ScaledScoreValues>(u"ScaledScoreValues", u"ValueType"),
        OfScore<&Score::LearningObjectivePrimary>(u"ScaledScoreLearningObjectivePrimary",
                                                  u"LearningObjectivePrimary"),
        OfScore<&Score::LearningObjectiveSecondary>(u"ScaledScoreLearningObjectiveSecondary",
                                                    u"LearningObjectiveSecondary"),
        OfScore<&Score::Precision>(u"ScaledScorePrecision", u"Precision"),
        OfDB<&DB::Name>(u"ScaledScoreDBName", u"DB.Name"),
        OfDB<&DB::Catalog>(u"ScaledScoreDBCatalog", u"DB.Catalog"),
        OfDB<&DB::Table>(u"ScaledScoreDBTable", u"DB.Table"),
        OfDB<&DB::MinFieldPrimary>(u"ScaledScoreDBMinFieldPrimary", u"DB.MinFieldPrimary"),
        OfDB<&DB::MaxFieldPrimary>(u"ScaledScoreDBMaxFieldPrimary", u"DB.MaxFieldPrimary"),
        OfDB<&DB::MinFieldSecondary>(u"ScaledScoreDBMinFieldSecondary", u"DB.MinFieldSecondary"),
        OfDB<&DB::MaxFieldSecondary>(u"ScaledScoreDBMaxFieldSecondary", u"DB.MaxFieldSecondary"),
        OfDB<&DB::ScoreField>(u"ScaledScoreDBScoreField", u"DB.ScoreField"),
        OfDB<&DB::ScoreGrade>(u"ScaledScoreDBScoreGrade", u"DB.ScoreGrade"),
        OfDB<&DB::DBType>(u"ScaledScoreDBType", u"DB.DBType"),
        OfDB<&DB::DSNBased>(u"ScaledScoreDBDSNBased", u"DB.DSNBased"),
        OfDB<&DB::DirectoryBased>(u"ScaledScoreDBDirectoryBased", u"DB.DirectoryBased"),
        OfDB<&DB::DSNName>(u"ScaledScoreDBDSNName", u"DB.DSNName"),
        OfSecret<&DB::User>(u"ScaledScoreDBUser", u"DB.User"),
        OfSecret<&DB::Password>(u"ScaledScoreDBPassword", u"DB.Password"),
        OfSecret<&DB::Connect>(u"ScaledScoreDBConnect", u"DB.Connect"),
        OfMark(u"ScaledScoreDBUnicode", u"DB.Unicode"),
    };
}();
static_assert(kScaledScoreMembers.size() ==
                  kMemberCount<clsHTDRDDScaledScore> + kMemberCount<clsHTDRDDScaledScoreDB> - 1,
              "Each member has a row, but for DB and DB->Valid, and the mark has one.");

/// Deciphers Connect, User and Password, in that order, unless they are empty. A text that isn't enciphered
/// is reported and becomes empty. Fails with 91 without a DB.
void DecipherConnection(const clsHTDRDDScaledScore& score, bool bUnicode);

/// Fills a record from the keys and values of a definition file or the string form. Holds the record, since a
/// report may release it.
template <bool (*Same)(TextView, TextView) noexcept = SameInUpperCase>
class ScaledScorePairs {
public:
    explicit ScaledScorePairs(Ref<clsHTDRDDScaledScore> score) : score_(std::move(score)) {}
    /// Returns false if the key doesn't belong to a scaled score.
    bool Take(TextView key, TextView value, Where at = Where::current()) {
        const ScaledScoreRow* const row = finder_.Find(key);
        if (row == nullptr) return false;
        if (row->form == ScaledScoreRow::Form::Mark)
            ReadValue(value, unicode_, at);
        else
            row->put(*score_, value, at);
        return true;
    }
    /// Deciphers the enciphered values. Call it after the last pair.
    void Decipher() const { DecipherConnection(*score_, unicode_); }

private:
    Ref<clsHTDRDDScaledScore> score_;
    RowFinder<ScaledScoreRow, kScaledScoreMembers.size(), Same> finder_{kScaledScoreMembers};
    bool unicode_ = false;
};

} // namespace htdrdd
