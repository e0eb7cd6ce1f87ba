#include "client/pages/folder_names.h"

#include <filesystem>
#include <string_view>
#include <utility>

#include "client/text/affixes.h"
#include "client/text/numbers.h"

namespace client {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kExtension = ".html";

std::string nameOf(const std::string& stem, int counter) {
    return stem + (counter == 0 ? "" : " (" + std::to_string(counter) + ')') +
           std::string(kExtension);
}

std::pair<std::string, int> parseName(std::string_view name) {
    const std::string_view base = name.substr(0, name.size() - kExtension.size());
    const std::size_t start = base.rfind(" (");
    if (start != std::string_view::npos && endsWith(base, ")")) {
        const auto counter =
            parseNumber<int>(base.substr(start + 2, base.size() - start - 3));
        const std::string stem(base.substr(0, start));
        if (counter && nameOf(stem, *counter) == name) {
            return {stem, *counter};
        }
    }
    return {std::string(base), 0};
}

}  // namespace

FolderNames::FolderNames(const std::string& folder) {
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        add(entry->path().filename().string());
    }
}

void FolderNames::add(const std::string& name) {
    if (endsWith(name, kExtension)) {
        const auto [stem, counter] = parseName(name);
        counters_[stem].insert(counter);
    }
}

std::vector<std::string> FolderNames::of(const std::string& stem) const {
    std::vector<std::string> names;
    if (const auto counters = counters_.find(stem); counters != counters_.end()) {
        for (const int counter : counters->second) {
            names.push_back(nameOf(stem, counter));
        }
    }
    return names;
}

std::string FolderNames::firstFree(const std::string& stem) const {
    int free = 0;
    if (const auto counters = counters_.find(stem); counters != counters_.end()) {
        while (counters->second.count(free) > 0) {
            ++free;
        }
    }
    return nameOf(stem, free);
}

}  // namespace client
