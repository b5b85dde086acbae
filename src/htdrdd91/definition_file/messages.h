/// Stop messages of the reader.
#pragma once

#include "htdrdd91/foundation/basError.h"

namespace htdrdd::basTemplate {

/// Shows a stop message about an invalid file. Fails with 91 without a host, and as the host fails.
inline void ShowInvalidFile(TextView sMessage, Where at = Where::current()) {
    ShowStopMessage(u"Invalid File", sMessage, {}, at);
}

} // namespace htdrdd::basTemplate
