// One command for several things.
#pragma once

#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "client/terminal/progress_bar.h"
#include "client/terminal/terminal.h"

namespace client {

// The result of one of them.
struct Outcome {
    std::string result = {};   // lines for standard output
    std::string message = {};  // for standard error; empty if there is none
    bool failed = false;
};

template <class Job>
Outcome outcomeOf(Job job) {
    try {
        return job();
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        return {"", error.what(), true};
    }
}

inline bool print(const Outcome& outcome) {
    std::cout << outcome.result << std::flush;
    if (!outcome.message.empty()) {
        std::cerr << errorText(outcome.message);
    }
    return !outcome.failed;
}

// Runs `job`, which returns an Outcome, and prints it. Returns whether it has not failed.
template <class Job>
bool report(Job job) {
    return print(outcomeOf(job));
}

// Reports `job` for each item; people at a terminal see `what`. Returns whether none
// failed.
template <class Item, class Job>
bool runBatch(const char* what, const std::vector<Item>& items, Job job) {
    ProgressBar progress(what, items.size());
    bool allDone = true;
    for (const Item& item : items) {
        progress.next();
        const Outcome outcome = outcomeOf([&] { return job(item); });
        progress.erase();
        allDone = print(outcome) && allDone;
    }
    return allDone;
}

// Thrown at the end of a command whose failures have been reported.
struct FailuresReported {};

inline void requireDone(bool allDone) {
    if (!allDone) {
        throw FailuresReported();
    }
}

// Returns the line for a file: its number alone if it is the only file, else with its name.
inline std::string resultOf(const std::string& file, std::size_t files, int changed) {
    return std::to_string(changed) + (files > 1 ? "\t" + printable(file) : "") + "\n";
}

}  // namespace client
