/// The writer of definition files.
#pragma once

#include "model/clsHTDRDD.h"

namespace htdrdd::basTemplate {

/// Writes a definition to a temporary file, makes way where sFile is there, and puts the new file in its
/// place, as an archive or as the text itself. The definition takes its grade scale and its scaled score over
/// from learning objective 1, whatever comes of the save. Whether sFile is there at the end; false where the
/// user declines to save invalid test versions, and after a failure, which is reported and leaves the
/// temporary file.
[[nodiscard]] bool VB_RT_save_template(TextView sFile, clsHTDRDD& oRDD, bool bEncrypt,
                                       bool bVerbose) noexcept;

} // namespace htdrdd::basTemplate
