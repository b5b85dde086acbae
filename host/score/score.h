/// htdrdd score: points and percent.
#pragma once

#include "host/console/exit_code.h"

#include <optional>
#include <string>

namespace htdrdd::host {

struct ScoreOptions {
    std::string first; ///< points, or a percentage
    std::string possible;
    std::string file; ///< a definition
    std::optional<std::string> objective;
    bool json = false;
};

[[nodiscard]] ExitCode PercentScore(const ScoreOptions& options);
[[nodiscard]] ExitCode TotalScore(const ScoreOptions& options);
/// The points that can be earned in a definition.
[[nodiscard]] ExitCode PossibleScore(const ScoreOptions& options);

} // namespace htdrdd::host
