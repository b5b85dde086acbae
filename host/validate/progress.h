/// The progress of a command.
#pragma once

#include <chrono>
#include <cstddef>

namespace htdrdd::host {

/// A progress bar on standard error, if that is a terminal and there are several files that take longer than
/// a moment. The next output erases it.
class Progress {
public:
    explicit Progress(std::size_t files);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    /// Erases the bar.
    ~Progress();

    /// Shows the bar. Call it before each file with the number of files done.
    void Show(std::size_t done) const;

private:
    std::size_t files_;
    std::size_t width_ = 0; ///< 0: there is no bar
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

} // namespace htdrdd::host
