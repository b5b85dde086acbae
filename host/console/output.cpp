#include "host/console/output.h"

#include "htdrdd91/platform/encoding.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace htdrdd::host {
namespace {

int writeError = 0; // the first error
bool statusStands = false;

bool IsHarmful(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0xAD || unit == 0x61C || unit == 0xFEFF ||
           (unit >= 0x200B && unit <= 0x200F) || (unit >= 0x2028 && unit <= 0x202E) ||
           (unit >= 0x2060 && unit <= 0x206F) || (unit >= 0xFFF9 && unit <= 0xFFFB);
}

void EraseStatus() {
    if (!statusStands) return;
    std::fputs("\r\x1b[K", stderr);
    statusStands = false;
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

std::string OnOneLine(TextView text) {
    Text line;
    EachPiece(Replaced(text, u"\r\n", u"\n"), u"\n", [&](TextView piece) {
        if (!piece.empty()) line.append(line.empty() ? u"" : u" ").append(piece);
    });
    return Harmless(line);
}

void Print(std::string_view text) {
    EraseStatus();
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) NoteError();
}

void ShowStatus(std::string_view text) {
    EraseStatus();
    if (text.empty()) return;
    std::fflush(stdout);
    std::fwrite(text.data(), 1, text.size(), stderr);
    statusStands = true;
}

void Complain(std::string_view text) {
    EraseStatus();
    std::fflush(stdout); // keeps both streams in order on a terminal; Finished detects errors
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
