#include "terminal/progress_line.h"

#include <unistd.h>

#include <chrono>
#include <iostream>
#include <system_error>
#include <utility>

#include "terminal/interruption.h"
#include "terminal/terminal.h"

ProgressLine::ProgressLine(std::string what) : what_(std::move(what)) {
    if (!isTerminal(STDERR_FILENO)) {
        return;
    }
    const SignalsHeld held;  // they are for the main thread
    try {
        thread_ = std::thread([this] { run(); });
    } catch (const std::system_error&) {
        return;  // the job itself needs no thread
    }
}

ProgressLine::~ProgressLine() {
    if (!thread_.joinable()) {
        return;
    }
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        ended_ = true;
    }
    ending_.notify_one();
    thread_.join();
}

void ProgressLine::run() {
    using std::chrono::seconds;
    using std::chrono::steady_clock;
    const steady_clock::time_point start = steady_clock::now();
    std::unique_lock<std::mutex> lock(mutex_);
    const char* erasure = "";
    while (!ending_.wait_for(lock, seconds(1), [this] { return ended_; })) {
        const auto passed =
            std::chrono::duration_cast<seconds>(steady_clock::now() - start);
        std::cerr << '\r' << what_ << "\u2026 " << passed.count() << " s" << std::flush;
        erasure = "\r\033[K";
    }
    std::cerr << erasure << std::flush;
}
