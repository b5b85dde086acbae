/// htdrdd scale: what only grade scales have, their clip form and the grades of percentages.
#pragma once

#include "host/console/exit_code.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace htdrdd::host {

struct ClipOptions {
    std::string file;  ///< a definition or an exchange file
    std::string paste; ///< a clip; then an exchange file is written instead
    std::string out;
    std::string name; ///< of the scale that is pasted
    std::optional<std::string> objective;
    bool json = false;
};

struct GradeOptions {
    std::string file;                  ///< a definition or an exchange file
    std::vector<std::string> percents; ///< empty: the lines of standard input
    std::optional<std::string> objective;
    std::int16_t places = 3;
    bool json = false;
};

/// Prints the clip form of a scale as it is, or on a terminal as it may be shown.
[[nodiscard]] ExitCode ClipScale(const ClipOptions& options);
/// Makes an exchange file of a clip.
[[nodiscard]] ExitCode PasteScale(const ClipOptions& options);
/// Prints the grade of each percentage as soon as it is read.
[[nodiscard]] ExitCode GradePercents(const GradeOptions& options);

} // namespace htdrdd::host
