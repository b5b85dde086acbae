/// How far a command has come.
#pragma once

#include <chrono>
#include <cstddef>

namespace htdrdd::host {

/// A bar on standard error, if that is a terminal and there are several files that take longer than a moment.
/// It stands until anything else is written.
class Progress {
public:
    explicit Progress(std::size_t files);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    /// Erases it.
    ~Progress();

    /// Before each file, with the number of those done.
    void Show(std::size_t done) const;

private:
    std::size_t files_;
    std::size_t width_ = 0; ///< 0: there is no bar
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

} // namespace htdrdd::host
