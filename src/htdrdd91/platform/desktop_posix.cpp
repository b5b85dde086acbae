#include "htdrdd91/platform/desktop.h"
#include "htdrdd91/platform/encoding.h"

#include <cstdio>
#include <ctime>

namespace htdrdd {

void Desktop::MousePointer(std::int32_t /*kind*/) {}

void Desktop::MsgBox(TextView prompt, std::int32_t /*flags*/, TextView caption) {
    const std::string text = ToUtf8(caption) + ": " + ToUtf8(prompt) + "\n";
    std::fputs(text.c_str(), stderr);
}

void Desktop::Pause(std::int32_t milliseconds) {
    const timespec time{milliseconds / 1000, milliseconds % 1000 * 1'000'000L};
    ::nanosleep(&time, nullptr);
}

} // namespace htdrdd
