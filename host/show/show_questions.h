/// The questions of a definition as a person reads them.
#pragma once

#include "host/show/show_objectives.h"

namespace htdrdd::host {

/// A table of the questions; empty without any.
[[nodiscard]] std::string QuestionsText(const clsHTDRDD& definition, const Memberships& memberships,
                                        const Terminal& terminal);

} // namespace htdrdd::host
