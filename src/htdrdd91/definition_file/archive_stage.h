/// The archive around a definition.
#pragma once

#include "htdrdd91/base/failure.h"
#include "htdrdd91/base/text.h"
#include "htdrdd91/foundation/temporary.h"

#include <optional>

namespace htdrdd::basTemplate {

/// The password of all archives, built anew for everybody who asks.
[[nodiscard]] Text ArchivePassword();

/// Finds the text of a definition: the file itself, or the one file in it where it is an archive.
class ArchiveStage {
public:
    /// The file to read the text from, which lasts as long as this object. None, with a stop message, where
    /// no temporary folder can be made and for an archive of more than one file.
    [[nodiscard]] std::optional<Text> Open(TextView sFile, Where at = Where::current());
    /// Deletes the temporary folder now and fails to the caller.
    void Close(Where at = Where::current()) const;

private:
    std::optional<Temporary> folder_;
};

} // namespace htdrdd::basTemplate
