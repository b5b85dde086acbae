/// The input files of a command.
#pragma once

#include "htdrdd91/foundation/temporary.h"

#include <optional>
#include <string>

namespace htdrdd::host {

/// The name of an input file in messages and JSON: that of the command line, or "standard input".
[[nodiscard]] Text InputName(const std::string& file);

/// A file to read. "-" is standard input, which is copied to a temporary file, since the library only reads
/// files.
class Input {
public:
    explicit Input(const std::string& file);

    /// The path of the file or the copy; empty if standard input can't be read.
    [[nodiscard]] const Text& Path() const noexcept { return copy_.Path().empty() ? path_ : copy_.Path(); }
    [[nodiscard]] const Text& Name() const noexcept { return name_; }

private:
    Text path_;
    Text name_;
    Temporary copy_;
};

/// Decodes little-endian UTF-16 with a byte order mark, or UTF-8. Returns std::nullopt for other bytes.
[[nodiscard]] std::optional<Text> DecodedText(std::string_view bytes);

} // namespace htdrdd::host
