/// Files: backups and temporary names.
#pragma once

#include "htdrdd91/base/text.h"

#include <cstdint>

namespace htdrdd::basPublic {

/// Moves a file to its name plus ".old". If the file is missing, the result is empty. If the backup exists,
/// the result is the text "True" and both files stay. Otherwise the file is copied and, with bDelete,
/// deleted; each step is retried up to iRetries times, 100 milliseconds apart. This is meant: the file is
/// deleted whether or not the copy succeeded, and the result is the backup's name in any case.
Text FileBackup(TextView sFile, bool bDelete, std::int16_t iRetries) noexcept;

/// A path in a folder (empty: the temporary folder) under which neither a file nor a folder exists. Creates
/// nothing. An empty prefix is "HTDRd", an empty extension a random one. Empty after a failure.
[[nodiscard]] Text GetUniqueFileName(TextView sPrefix, TextView sExtension, TextView sFolder) noexcept;

} // namespace htdrdd::basPublic
