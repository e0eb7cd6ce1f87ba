// Shows the progress of a long job.
#pragma once

#include <cstddef>
#include <string>

namespace client {

// A line on standard error, if that is a terminal. It is visible during each step, in which
// nothing else may be printed.
class ProgressBar {
public:
    ProgressBar(std::string what, std::size_t steps);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    // Draws the line for the next step.
    void next();

    void erase();

private:
    const std::string what_;
    const std::size_t steps_;
    std::size_t step_ = 0;
    const bool isShown_;
    bool isDrawn_ = false;
};

}  // namespace client
