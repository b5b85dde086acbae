/// The reader of definition files.
#pragma once

#include "model/clsHTDRDD.h"

namespace htdrdd::basTemplate {

/// Reads a definition file into an object, which is cleared first. False, with the object as it was, for a
/// file that isn't there; otherwise the object holds what was read up to the end. A broken file is complained
/// of through the host; one whose first line is no section line is refused in silence.
[[nodiscard]] bool VB_RT_read_template(TextView sFile, clsHTDRDD& oRDD) noexcept;

} // namespace htdrdd::basTemplate
