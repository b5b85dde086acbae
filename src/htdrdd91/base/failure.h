/// Failures: the library's only exception type, its numbers and their texts.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace htdrdd {

/// Source line of a statement; 0 if unknown. A function that can fail takes `Where at = Where::current()` as
/// its last argument, so that a failure carries the line of the calling statement.
struct Where {
    int line = 0;
    static constexpr Where current(int line = __builtin_LINE()) noexcept { return {line}; }
};

/// Failure numbers.
enum class Err : std::int32_t {
    Argument = 5,
    Overflow = 6,
    Memory = 7,
    Subscript = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    Internal = 51,
    BadFileName = 52,
    FileNotFound = 53,
    BadFileMode = 54,
    DeviceIO = 57,
    FileExists = 58,
    DiskFull = 61,
    PastEnd = 62,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    NotSet = 91,
    InvalidNull = 94,
    CantCreate = 429,
    NoSuchMember = 438,
    ArgumentMissing = 449,
    ArgumentCount = 450,
    KeyInUse = 457,
    NotFound = 32811,
};

/// The standard description of a failure number; numbers without their own share a general text.
[[nodiscard]] std::u16string_view ErrorText(std::int32_t number) noexcept;

/// The exception of a routine that fails. Members that are noexcept catch and report it; from all other
/// members it passes to the C++ host.
class Failure final : public std::exception {
public:
    explicit Failure(Err number, Where at = {}) : Failure(static_cast<std::int32_t>(number), at) {}
    explicit Failure(std::int32_t number, Where at = {}) : number_(number), line_(at.line) {}
    /// A failure from outside the library, with its own text.
    Failure(std::int32_t number, std::u16string text, Where at = {})
        : number_(number), line_(at.line), text_(std::move(text)) {}

    [[nodiscard]] std::int32_t Number() const noexcept { return number_; }
    [[nodiscard]] int Line() const noexcept { return line_; }
    [[nodiscard]] std::u16string_view Text() const noexcept {
        return text_.empty() ? ErrorText(number_) : std::u16string_view(text_);
    }
    [[nodiscard]] const char* what() const noexcept override { return "htdrdd::Failure"; }

private:
    std::int32_t number_;
    int line_;
    std::u16string text_;
};

/// Number, line and text of the exception being handled, of any type. Call only in a catch handler.
[[nodiscard]] Failure CurrentFailure() noexcept;

/// Runs a statement and drops its failure.
template <class Statement>
void IgnoreFailure(const Statement& statement) noexcept {
    try {
        statement();
    } catch (...) { // intended: the caller goes on regardless
    }
}

} // namespace htdrdd
