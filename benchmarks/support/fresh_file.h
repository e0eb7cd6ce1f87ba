// A file that each round of a benchmark writes anew.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

#include "job.h"

class FreshFile {
public:
    explicit FreshFile(std::filesystem::path path = std::filesystem::temp_directory_path() /
                                                    ("notes-export-benchmark-" +
                                                     std::to_string(getpid())))
        : path_(std::move(path)) {}

    const char* path() const { return path_.c_str(); }

    // A file that is missing would have been written fast.
    void remove() const {
        if (!std::filesystem::remove(path_)) {
            throw std::runtime_error("no file was written");
        }
    }

    // The seconds that `write(path)` takes; the file is removed afterwards.
    template <class Write>
    double secondsOfWriting(Write write) const {
        const double seconds = secondsOf([&] { write(path()); });
        remove();
        return seconds;
    }

private:
    std::filesystem::path path_;
};
