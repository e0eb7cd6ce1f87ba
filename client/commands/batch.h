// One command for several things.
#pragma once

#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "client/error.h"
#include "client/terminal/progress_bar.h"

// What became of one of them.
struct Outcome {
    std::string result = {};     // lines for standard output
    std::string complaint = {};  // for standard error; empty when there is none
    bool failed = false;
};

template <class Item, class Job>
Outcome outcomeOf(const Item& item, Job job) {
    try {
        return job(item);
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& error) {
        return {"", error.what(), true};
    }
}

// Thrown at the end of a command whose failures have been reported.
struct FailuresReported {};

// Does `job`, which returns an Outcome, for each item; `what` is being done, for people at
// a terminal. A failure is reported, and the others go on.
template <class Item, class Job>
void doEach(const char* what, const std::vector<Item>& items, Job job) {
    ProgressBar progress(what, items.size());
    bool allDone = true;
    for (const Item& item : items) {
        progress.next();
        const Outcome outcome = outcomeOf(item, job);
        progress.erase();
        std::cout << outcome.result << std::flush;
        if (!outcome.complaint.empty()) {
            std::cerr << complaintText(outcome.complaint);
        }
        allDone = allDone && !outcome.failed;
    }
    if (!allDone) {
        throw FailuresReported();
    }
}

// The result of a file: alone when it is the only one, else with the file's name.
inline std::string resultOf(const std::string& file, std::size_t files, int changed) {
    return std::to_string(changed) + (files > 1 ? "\t" + file : "") + "\n";
}
