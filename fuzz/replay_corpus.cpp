// Replaces libFuzzer: runs every file in the given directory once, and checks that its
// folder names the outcome.
#include <filesystem>

#include "fuzz_target.h"
#include "scratch_files.h"

int main(int count, char** arguments) {
    fuzz::check(count == 2, "a directory is given");
    int inputs = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(arguments[1])) {
        if (entry.is_directory()) {
            continue;
        }
        std::cout << entry.path().string() << std::endl;
        const std::string input = readFile(entry.path().string());
        const std::vector<std::uint8_t> bytes(input.begin(), input.end());
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
        const std::string folder = entry.path().parent_path().filename().string();
        fuzz::check(fuzz::outcome.empty() || fuzz::outcome == folder,
                    "the outcome is " + fuzz::outcome);
        ++inputs;
    }
    fuzz::check(inputs > 0, "the corpus has inputs");
}
