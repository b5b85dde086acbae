# What widl's header of the interfaces needs to be C++ everywhere.

# The default of a text, where it comes last, becomes one of C++; no BSTR can be made from that.
s/ = L"[^"]*")/)/
# Enumerations without a type don't hold every number that a host assigns.
s/^typedef enum [A-Za-z]* /&: int /
s:<automation.h>:"component/posix/automation.h":
# Its classes bear the names of ours.
1i // NOLINTBEGIN
$a // NOLINTEND
