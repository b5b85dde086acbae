/// The files that a command reads.
#pragma once

#include "htdrdd91/foundation/temporary.h"

#include <optional>
#include <string>

namespace htdrdd::host {

/// What sentences and JSON call a file that was named on the command line: its name, or "standard input".
[[nodiscard]] Text InputName(const std::string& file);

/// A file to read. "-" is standard input, which is copied into a temporary file, since the library reads
/// files.
class Input {
public:
    explicit Input(const std::string& file);

    /// Where it can be read; empty where standard input can't be.
    [[nodiscard]] const Text& Path() const noexcept { return copy_.Path().empty() ? path_ : copy_.Path(); }
    [[nodiscard]] const Text& Name() const noexcept { return name_; }

private:
    Text path_;
    Text name_;
    Temporary copy_;
};

/// Text in UTF-16, little-endian with a byte order mark, or else in UTF-8. Nothing where it is in neither.
[[nodiscard]] std::optional<Text> DecodedText(std::string_view bytes);

} // namespace htdrdd::host
