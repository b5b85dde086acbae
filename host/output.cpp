#include "host/output.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace htdrdd::host {
namespace {

int writeError = 0; // the first one

bool IsHarmful(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0xAD || unit == 0x61C || unit == 0xFEFF ||
           (unit >= 0x200B && unit <= 0x200F) || (unit >= 0x2028 && unit <= 0x202E) ||
           (unit >= 0x2060 && unit <= 0x206F) || (unit >= 0xFFF9 && unit <= 0xFFFB);
}

void NoteError() {
    if (writeError == 0) writeError = errno != 0 ? errno : EIO;
}

} // namespace

std::string Harmless(TextView text) {
    Text shown(text);
    for (char16_t& unit : shown)
        if (IsHarmful(unit)) unit = unit == u'\t' ? u' ' : u'·';
    return ToUtf8(shown);
}

std::string Harmless(std::string_view text) { return Harmless(FromUtf8(text)); }

void Print(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) NoteError();
}

void Complain(std::string_view text) {
    std::fflush(stdout); // so that both come in order on a terminal; Finished finds what fails here
    const std::string line = std::string("htdrdd: ").append(text) + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

bool Finished() {
    errno = 0;
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) NoteError();
    if (writeError == 0) return true;
    Complain("the output can't be written: " + std::generic_category().message(writeError));
    return false;
}

} // namespace htdrdd::host
