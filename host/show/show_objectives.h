/// The learning objectives of a definition as a person reads them.
#pragma once

#include "host/console/terminal.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <string>
#include <vector>

namespace htdrdd::host {

/// Which questions belong to which learning objectives, gathered in one walk.
struct Memberships {
    explicit Memberships(const clsHTDRDD& definition);

    std::vector<std::string> ofQuestion;            ///< "1, 3 ×0.5", by question
    std::vector<std::int32_t> questionsOfObjective; ///< how many, by learning objective
};

/// A table of the learning objectives, and their grade scales and scaled scores, each once. Empty without
/// learning objectives.
[[nodiscard]] std::string ObjectivesText(const clsHTDRDD& definition, const Memberships& memberships,
                                         const Terminal& terminal);

} // namespace htdrdd::host
