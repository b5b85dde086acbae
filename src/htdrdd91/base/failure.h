/// Failures: the one exception of the library, its numbers and their texts.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace htdrdd {

/// Source line of a statement. A function that can fail takes `Where at = Where::current()` as its last
/// argument, so that the line is that of the statement that called it; 0 means that none is known.
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

/// The standard description of a failure number; numbers without one share a general text.
[[nodiscard]] std::u16string_view ErrorText(std::int32_t number) noexcept;

/// What a routine throws when it can't do what it was asked to. It ends in the failure tail of the routine
/// that reports it and never leaves the library.
class Failure final : public std::exception {
public:
    explicit Failure(Err number, Where at = {}) : Failure(static_cast<std::int32_t>(number), at) {}
    explicit Failure(std::int32_t number, Where at = {}) : number_(number), line_(at.line) {}
    /// A failure that came from outside with a text of its own.
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

/// Failure number, line and text of the exception being handled, whatever its type. Call it in a handler
/// only.
[[nodiscard]] Failure CurrentFailure() noexcept;

/// Runs one statement and drops its failure.
template <class Statement>
void IgnoreFailure(const Statement& statement) noexcept {
    try {
        statement();
    } catch (...) { // meant: the caller goes on whatever happened
    }
}

} // namespace htdrdd
