/// The learning objectives of a definition, as text for people.
#pragma once

#include "host/console/terminal.h"
#include "htdrdd91/model/clsHTDRDD.h"

#include <string>
#include <vector>

namespace htdrdd::host {

/// The memberships of all questions, collected in one walk.
struct Memberships {
    explicit Memberships(const clsHTDRDD& definition);

    std::vector<std::string> ofQuestion;            ///< "1, 3 ×0.5", by question
    std::vector<std::int32_t> questionsOfObjective; ///< number of questions, by learning objective
};

/// A table of the learning objectives, followed by their grade scales and scaled scores, each once. Empty if
/// there are no learning objectives.
[[nodiscard]] std::string ObjectivesText(const clsHTDRDD& definition, const Memberships& memberships,
                                         const Terminal& terminal);

} // namespace htdrdd::host
