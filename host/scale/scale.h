/// htdrdd scale: the commands that only grade scales have, for clips and the grades of percentages.
#pragma once

#include "host/console/exit_code.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace htdrdd::host {

struct ClipOptions {
    std::string file;  ///< a definition or an exchange file
    std::string paste; ///< a clip; if set, it is written to an exchange file
    std::string out;
    std::string name; ///< name of the pasted scale
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

/// Prints the clip form of a scale, on a terminal made harmless.
[[nodiscard]] ExitCode ClipScale(const ClipOptions& options);
/// Writes an exchange file from a clip.
[[nodiscard]] ExitCode PasteScale(const ClipOptions& options);
/// Prints the grade of each percentage as soon as it is read.
[[nodiscard]] ExitCode GradePercents(const GradeOptions& options);

} // namespace htdrdd::host
