#include "client/pages/page_places.h"

#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "client/error.h"
#include "client/files/digest.h"
#include "client/pages/page_checks.h"
#include "client/text/affixes.h"
#include "client/text/numbers.h"

namespace client {
namespace {

namespace fs = std::filesystem;

std::string nameOf(const std::string& stem, int counter) {
    return stem + (counter == 0 ? "" : " (" + std::to_string(counter) + ')') + ".html";
}

// Returns the counters of the names of this stem; 0 stands for the name without one.
std::set<int> countersOf(const std::set<std::string>& names, const std::string& stem) {
    const std::string start = stem + " (";
    std::set<int> counters = {0};
    for (auto name = names.lower_bound(start);
         name != names.end() && startsWith(*name, start); ++name) {
        const auto counter = parseNumber<int>(
            std::string_view(*name).substr(start.size(), name->find(')') - start.size()));
        counters.insert(counter.value_or(0));
    }
    return counters;
}

WrittenFile withInputs(WrittenFile file, const char* inputs) {
    file.inputs = inputs;
    return file;
}

}  // namespace

PagePlaces::PagePlaces(const std::string& folder) : folder_(folder) {
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        add(entry->path().filename().string());
    }
}

PagePlace PagePlaces::find(const std::string& stem, const WrittenFile& wanted) {
    PagePlace free = findFree(stem);
    for (const int counter : countersOf(names_, stem)) {
        PagePlace place{nameOf(stem, counter)};
        if (names_.count(place.name) > 0 && isOurs(place, wanted)) {
            return place;
        }
        free.foreign = free.foreign.empty() ? place.foreign : free.foreign;
    }
    return free;
}

PagePlace PagePlaces::findFree(const std::string& stem) const {
    int counter = 0;
    while (names_.count(nameOf(stem, counter)) > 0) {
        ++counter;
    }
    return {nameOf(stem, counter)};
}

PagePlace PagePlaces::findFile(const std::string& name, const WrittenFile& wanted,
                               const std::string& displayPath) {
    PagePlace place{name};
    std::error_code failure;
    const bool isThere = fs::exists(fs::symlink_status(folder_ + '/' + name, failure));
    if (isThere && !isOurs(place, wanted)) {
        throw UserError(displayPath + " is there already, and stays as it is.");
    }
    return place;
}

bool PagePlaces::isOurs(PagePlace& place, const WrittenFile& wanted) {
    place.content = tryContentDigest(folder_ + '/' + place.name);
    auto note = place.content.empty() ? std::nullopt : noteOf(place, wanted);
    if (!note) {
        place.foreign = place.name;
    } else if (note->isOfSame(wanted)) {
        place.ours = std::move(note);
    }
    return place.ours.has_value();
}

// Version 1.1 noted nothing. An empty file may have been left where a name was taken.
std::optional<WrittenFile> PagePlaces::noteOf(const PagePlace& place,
                                              const WrittenFile& wanted) try {
    const std::string path = folder_ + '/' + place.name;
    if (auto note = written_.find(place.content, place.name)) {
        return note;
    }
    if (place.content == Digest().hexadecimal()) {
        return withInputs(wanted, WrittenFile::kNoRecords);
    }
    return written_.hasMarkAlone(place.content, path) && namesBook(path, wanted.book)
               ? std::optional(withInputs(wanted, "1.1"))
               : std::nullopt;
} catch (const std::runtime_error&) {  // a file that cannot be looked up is not ours
    return std::nullopt;
}

std::string PagePlaces::tryNote(
    const std::vector<std::pair<std::string, WrittenFile>>& files) {
    try {
        written_.note(files);
        return {};
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

void PagePlaces::tryForget(const std::string& content, const WrittenFile& file) {
    try {
        written_.forget(content, file);
    } catch (const std::runtime_error&) {  // the note can only match a file of this content
    }
}

}  // namespace client
