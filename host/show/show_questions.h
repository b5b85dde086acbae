/// The questions of a definition, as text for people.
#pragma once

#include "host/show/show_objectives.h"

namespace htdrdd::host {

/// A table of the questions; empty if there are none.
[[nodiscard]] std::string QuestionsText(const clsHTDRDD& definition, const Memberships& memberships,
                                        const Terminal& terminal);

} // namespace htdrdd::host
