/// Putting a new file in the place of an old one.
#pragma once

#include "platform/failure.h"
#include "platform/text.h"

#include <cstdint>
#include <optional>

namespace htdrdd::basTemplate {

/// A file that is saved, perhaps where there is an old one. Members fail to the caller.
class TargetFile {
public:
    explicit TargetFile(TextView sFile);

    /// Makes way: deletes an old file where its text is Unicode, which for an archive takes the password, and
    /// keeps it under its name with ".old" behind it otherwise. Where a backup can't be made, or is there
    /// already, the old file stays.
    void MakeWay(TextView sPassword, Where at = Where::current()) const;
    /// Puts a temporary file in the place, if it is there, and deletes it. After a failure there is no part
    /// of a file.
    void Put(TextView sTemporary, Where at = Where::current()) const;
    /// Whether the file is there. It gets the rights of the old one: a key that only its owner could read
    /// stays so.
    [[nodiscard]] bool IsThere() const;

private:
    TextView sFile_;
    std::optional<std::uint32_t> mode_; ///< of the old file
};

} // namespace htdrdd::basTemplate
