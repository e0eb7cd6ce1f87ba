// Stands in for libFuzzer: runs every file of the directory given, once.
#include <filesystem>

#include "files.h"
#include "fuzz_target.h"

int main(int count, char** arguments) {
    fuzz::check(count == 2, "a directory is given");
    int inputs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::cout << entry.path().string() << std::endl;
        const std::string input = readFile(entry.path().string());
        const std::vector<std::uint8_t> bytes(input.begin(), input.end());
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
        ++inputs;
    }
    fuzz::check(inputs > 0, "the corpus holds inputs");
}
