/// The list of the plain members of a definition, as [Report] holds them.
#pragma once

#include "htdrdd91/base/class_members.h"
#include "htdrdd91/model/clsHTDRDD.h"

namespace htdrdd {

template <>
inline constexpr auto kMembers<clsHTDRDD> =
    std::tuple{NamedMember{u"TemplateName", &clsHTDRDD::TemplateName},
               NamedMember{u"Description", &clsHTDRDD::Description},
               NamedMember{u"Notes", &clsHTDRDD::Notes},
               NamedMember{u"ReportType", &clsHTDRDD::ReportType},
               NamedMember{u"NumPages", &clsHTDRDD::NumPages},
               NamedMember{u"CustomHeader", &clsHTDRDD::CustomHeader}};

} // namespace htdrdd
