// A file that each round of a benchmark creates.
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

    // Throws if the file is missing, because writing none is fast.
    void remove() const {
        if (!std::filesystem::remove(path_)) {
            throw std::runtime_error("no file was written");
        }
    }

    // Returns the seconds that `write(path)` takes, and removes the file.
    template <class Write>
    double secondsOfWriting(Write write) const {
        const double seconds = secondsOf([&] { write(path()); });
        remove();
        return seconds;
    }

private:
    std::filesystem::path path_;
};
