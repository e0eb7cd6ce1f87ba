// Tells someone at a terminal that a long job goes on.
#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

// While it lives, and once a second has passed, shows on standard error what is being done
// and for how long, if that is a terminal. Nothing else may be printed meanwhile. Its
// destructor erases the line.
class ProgressLine {
public:
    explicit ProgressLine(std::string what);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

private:
    void run();

    std::string what_;
    std::mutex mutex_;
    std::condition_variable ending_;
    bool ended_ = false;
    std::thread thread_;
};
