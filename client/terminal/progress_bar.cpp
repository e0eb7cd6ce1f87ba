#include "client/terminal/progress_bar.h"

#include <unistd.h>

#include <iostream>
#include <utility>

#include "client/terminal/terminal.h"

namespace client {

ProgressBar::ProgressBar(std::string what, std::size_t steps)
    : what_(std::move(what)), steps_(steps), isShown_(isTerminal(STDERR_FILENO)) {}

ProgressBar::~ProgressBar() { erase(); }

void ProgressBar::next() {
    ++step_;
    if (!isShown_) {
        return;
    }
    std::cerr << '\r' << what_;
    if (steps_ > 1) {
        constexpr std::size_t kWidth = 30;
        const std::size_t done = (step_ - 1) * kWidth / steps_;
        std::cerr << " [" << std::string(done, '#') << std::string(kWidth - done, '.')
                  << "] " << step_ << '/' << steps_;
    }
    std::cerr << "\u2026" << std::flush;
    isDrawn_ = true;
}

void ProgressBar::erase() {
    if (std::exchange(isDrawn_, false)) {
        std::cerr << "\r\033[K" << std::flush;
    }
}

}  // namespace client
