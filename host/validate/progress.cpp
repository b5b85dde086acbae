#include "host/validate/progress.h"

#include "host/console/output.h"
#include "host/console/terminal.h"
#include "htdrdd91/base/failure.h"

#include <string>
#include <unistd.h>

namespace htdrdd::host {

Progress::Progress(std::size_t files) : files_(files) {
    if (files > 1 && ::isatty(STDERR_FILENO) == 1) width_ = Terminal::OfErrors().width - 1;
}

Progress::~Progress() {
    IgnoreFailure([] { ShowStatus(""); });
}

void Progress::Show(std::size_t done) const {
    constexpr std::chrono::milliseconds kMoment{500};
    constexpr std::size_t kCells = 30;
    if (width_ == 0 || std::chrono::steady_clock::now() - start_ < kMoment) return;
    std::string bar(done * kCells / files_, '#');
    bar.resize(kCells, '.');
    ShowStatus(Fitted(std::to_string(done) + " of " + std::to_string(files_) + " [" + bar + ']', width_));
}

} // namespace htdrdd::host
