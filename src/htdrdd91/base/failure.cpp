#include "htdrdd91/base/failure.h"

#include <algorithm>
#include <array>
#include <new>
#include <stdexcept>

namespace htdrdd {
namespace {

struct Description {
    Err number;
    std::u16string_view text;
};

constexpr std::array kDescriptions{
    Description{Err::Argument, u"Invalid procedure call or argument"},
    Description{Err::Overflow, u"Overflow"},
    Description{Err::Memory, u"Out of memory"},
    Description{Err::Subscript, u"Subscript out of range"},
    Description{Err::DivisionByZero, u"Division by zero"},
    Description{Err::TypeMismatch, u"Type mismatch"},
    Description{Err::BadFileName, u"Bad file name or number"},
    Description{Err::FileNotFound, u"File not found"},
    Description{Err::BadFileMode, u"Bad file mode"},
    Description{Err::DeviceIO, u"Device I/O error"},
    Description{Err::FileExists, u"File already exists"},
    Description{Err::DiskFull, u"Disk full"},
    Description{Err::PastEnd, u"Input past end of file"},
    Description{Err::PermissionDenied, u"Permission denied"},
    Description{Err::PathFileAccess, u"Path/File access error"},
    Description{Err::PathNotFound, u"Path not found"},
    Description{Err::NotSet, u"Object variable or With block variable not set"},
    Description{Err::InvalidNull, u"Invalid use of Null"},
    Description{Err::CantCreate, u"ActiveX component can't create object"},
    Description{Err::NoSuchMember, u"Object doesn't support this property or method"},
    Description{Err::ArgumentMissing, u"Argument not optional"},
    Description{Err::ArgumentCount, u"Wrong number of arguments or invalid property assignment"},
    Description{Err::KeyInUse, u"This key is already associated with an element of this collection"},
    Description{Err::NotFound, u"Element not found"},
};

} // namespace

std::u16string_view ErrorText(std::int32_t number) noexcept {
    const auto* const found =
        std::find_if(kDescriptions.begin(), kDescriptions.end(), [number](const Description& d) {
            return static_cast<std::int32_t>(d.number) == number;
        });
    return found != kDescriptions.end() ? found->text : u"Application-defined or object-defined error";
}

Failure CurrentFailure() noexcept {
    try {
        throw;
    } catch (const Failure& failure) {
        try {
            return failure;
        } catch (...) { // no memory to copy the text: keep the number and the line
            return Failure(failure.Number(), Where{failure.Line()});
        }
    } catch (const std::bad_alloc&) { return Failure(Err::Memory); } catch (const std::length_error&) {
        return Failure(Err::Memory);
    } catch (...) { return Failure(Err::Internal); }
}

} // namespace htdrdd
