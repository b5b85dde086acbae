/// Putting a new file in the place of an old one.
#pragma once

#include "htdrdd91/platform/file_system.h"

#include <optional>

namespace htdrdd::basTemplate {

/// The place of a file that is saved, perhaps with an old one in it. A link stays one: the file that it leads
/// to is meant. Members fail to the caller.
class TargetFile {
public:
    explicit TargetFile(TextView sFile);

    [[nodiscard]] const Text& Path() const noexcept { return path_; }
    /// Makes way: deletes an old file where its text is Unicode, which for an archive takes the password; one
    /// of single bytes is moved to its name with ".old" behind it. That one stays where there is such a file
    /// already, and where it can't be deleted.
    void MakeWay(TextView sPassword, Where at = Where::current()) const;
    /// Puts a temporary file in the place, with the rights of the old one, if it is there, and deletes it.
    /// After a failure there is no part of a file.
    void Put(TextView sTemporary, Where at = Where::current()) const;
    /// Gives what was put there otherwise the rights of the old file, so that a key stays as secret as it
    /// was.
    void RestoreRights() const noexcept;

private:
    Text path_;
    std::optional<FileMode> mode_; ///< of the old file
};

} // namespace htdrdd::basTemplate
