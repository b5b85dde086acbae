/// The archive around a definition.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/foundation/temporary.h"

#include <optional>

namespace htdrdd::basTemplate {

/// The password of all archives, computed anew by each call.
[[nodiscard]] Text ArchivePassword();

/// Finds the text of a definition: the file itself or, if it is an archive, the one file in it.
class ArchiveStage {
public:
    /// The file that contains the text; it exists as long as this object. Returns std::nullopt, with a stop
    /// message, if the temporary folder can't be created or the archive contains more than one file.
    [[nodiscard]] std::optional<Text> Open(TextView sFile, Where at = Where::current());
    /// Deletes the temporary folder now. A failure passes to the caller.
    void Close(Where at = Where::current()) const;

private:
    std::optional<Temporary> folder_;
};

} // namespace htdrdd::basTemplate
