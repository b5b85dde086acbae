/// The lists of the members of scaled scores and of their connection settings.
#pragma once

#include "htdrdd91/base/class_members.h"
#include "htdrdd91/scaled_scores/clsHTDRDDScaledScore.h"
#include "htdrdd91/scaled_scores/clsHTDRDDScaledScoreDB.h"

namespace htdrdd {

template <>
inline constexpr auto kMembers<clsHTDRDDScaledScoreDB> =
    std::tuple{NamedMember{u"Name", &clsHTDRDDScaledScoreDB::Name},
               NamedMember{u"Catalog", &clsHTDRDDScaledScoreDB::Catalog},
               NamedMember{u"Table", &clsHTDRDDScaledScoreDB::Table},
               NamedMember{u"MinFieldPrimary", &clsHTDRDDScaledScoreDB::MinFieldPrimary},
               NamedMember{u"MaxFieldPrimary", &clsHTDRDDScaledScoreDB::MaxFieldPrimary},
               NamedMember{u"MinFieldSecondary", &clsHTDRDDScaledScoreDB::MinFieldSecondary},
               NamedMember{u"MaxFieldSecondary", &clsHTDRDDScaledScoreDB::MaxFieldSecondary},
               NamedMember{u"ScoreField", &clsHTDRDDScaledScoreDB::ScoreField},
               NamedMember{u"ScoreGrade", &clsHTDRDDScaledScoreDB::ScoreGrade},
               NamedMember{u"DBType", &clsHTDRDDScaledScoreDB::DBType},
               NamedMember{u"Connect", &clsHTDRDDScaledScoreDB::Connect},
               NamedMember{u"DirectoryBased", &clsHTDRDDScaledScoreDB::DirectoryBased},
               NamedMember{u"DSNBased", &clsHTDRDDScaledScoreDB::DSNBased},
               NamedMember{u"DSNName", &clsHTDRDDScaledScoreDB::DSNName},
               NamedMember{u"User", &clsHTDRDDScaledScoreDB::User},
               NamedMember{u"Password", &clsHTDRDDScaledScoreDB::Password},
               NamedMember{u"Valid", &clsHTDRDDScaledScoreDB::Valid}};
static_assert(ListsAllMembers<clsHTDRDDScaledScoreDB>(),
              "A data member of clsHTDRDDScaledScoreDB is missing from the list.");

template <>
inline constexpr auto kMembers<clsHTDRDDScaledScore> = std::tuple{
    NamedMember{u"LearningObjectivePrimary", &clsHTDRDDScaledScore::LearningObjectivePrimary},
    NamedMember{u"LearningObjectiveSecondary", &clsHTDRDDScaledScore::LearningObjectiveSecondary},
    NamedMember{u"Precision", &clsHTDRDDScaledScore::Precision},
    NamedMember{u"ScaledScoreName", &clsHTDRDDScaledScore::ScaledScoreName},
    NamedMember{u"ScaledScoreValues", &clsHTDRDDScaledScore::ScaledScoreValues},
    NamedMember{u"ScaledScoreCriteriaPrimary", &clsHTDRDDScaledScore::ScaledScoreCriteriaPrimary},
    NamedMember{u"ScaledScoreCriteriaSecondary", &clsHTDRDDScaledScore::ScaledScoreCriteriaSecondary},
    NamedMember{u"DB", &clsHTDRDDScaledScore::DB}};
static_assert(ListsAllMembers<clsHTDRDDScaledScore>(),
              "A data member of clsHTDRDDScaledScore is missing from the list.");

} // namespace htdrdd
