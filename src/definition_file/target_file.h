/// Putting a new file in the place of an old one.
#pragma once

#include "platform/failure.h"
#include "platform/text.h"

namespace htdrdd::basTemplate {

/// Makes way for a new file where there is an old one: deletes it where its text is Unicode, which for an
/// archive takes the password, and keeps it under its name with ".old" behind it otherwise. A backup that
/// can't be made, or is there already, leaves the old file. Fails to the caller.
void MakeWay(TextView sFile, TextView sPassword, Where at = Where::current());

/// Puts a temporary file in its place, if it is there, and deletes it. Fails to the caller; the place then
/// has no part of a file.
void PutInPlace(TextView sTemporary, TextView sFile, Where at = Where::current());

} // namespace htdrdd::basTemplate
