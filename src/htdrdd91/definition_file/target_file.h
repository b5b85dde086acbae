/// Replaces an old file by a new one.
#pragma once

#include "htdrdd91/platform/file_system.h"

#include <optional>

namespace htdrdd::basTemplate {

/// The place of a saved file, which may have an old file in it. If the path is a link, the link stays and its
/// target is the place. Failures pass to the caller.
class TargetFile {
public:
    explicit TargetFile(TextView sFile);

    [[nodiscard]] const Text& Path() const noexcept { return path_; }
    /// Makes way for a new file. An old file with Unicode text is deleted; the password opens an archive to
    /// find out. An old file with single-byte text is moved to its name plus ".old"; it stays if such a file
    /// exists already or if it can't be deleted.
    void MakeWay(TextView sPassword, Where at = Where::current()) const;
    /// Moves a temporary file to the place, if it exists; the new file gets the permissions of the old one.
    /// After a failure no partial file remains.
    void Put(TextView sTemporary, Where at = Where::current()) const;
    /// Gives a file that was put in the place by other means the permissions of the old file, so that a key
    /// stays as secret as it was.
    void RestoreRights() const noexcept;

private:
    Text path_;
    std::optional<FileMode> mode_; ///< of the old file
};

} // namespace htdrdd::basTemplate
