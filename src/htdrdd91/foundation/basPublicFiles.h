/// Files: backups and temporary names.
#pragma once

#include "htdrdd91/base/text.h"

#include <cstdint>

namespace htdrdd::basPublic {

/// Moves a file aside to its name with ".old" behind it. A missing file gives an empty text. Where the backup
/// is there already, the result is the text "True" and both files stay. Otherwise the file is copied and,
/// with bDelete, deleted, each tried again up to iRetries times with 100 milliseconds between. This is meant:
/// the file is deleted whether or not the copy succeeded, and the result is the backup's name in any case.
Text FileBackup(TextView sFile, bool bDelete, std::int16_t iRetries) noexcept;

/// A path in a folder (empty: the temporary one) that is neither a file nor a folder. Nothing is made. An
/// empty prefix is "HTDRd", an empty extension a random one. Empty after a failure.
[[nodiscard]] Text GetUniqueFileName(TextView sPrefix, TextView sExtension, TextView sFolder) noexcept;

} // namespace htdrdd::basPublic
