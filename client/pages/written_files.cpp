#include "client/pages/written_files.h"

#include <sstream>

#include "client/files/digest.h"
#include "fast_book_hash.h"
#include "store/database_paths.h"

namespace client {
namespace {

constexpr int kMarkProperty = 7;  // the library's
constexpr int kNotesProperty = 1007;
constexpr const char* kImported = "imported\n";  // or marked, but not moved

std::string digestOf(const std::string& name) {
    Digest digest;
    digest.add(name);
    return digest.hexadecimal();
}

std::string lineOf(const WrittenFile& file) {
    return file.book + ' ' + file.format + ' ' + file.selection + ' ' + file.inputs + ' ' +
           digestOf(file.name) + ' ' + file.run + '\n';
}

}  // namespace

WrittenFiles::WrittenFiles() : library_(host::kLibraryDatabasePath) {}

std::string WrittenFiles::notes(const std::string& content) {
    return library_.fileProp(content, kNotesProperty).value_or("");
}

std::optional<WrittenFile> WrittenFiles::find(const std::string& content,
                                              const std::string& name) {
    std::istringstream lines(notes(content));
    const std::string wanted = digestOf(name);
    WrittenFile file;
    std::string nameDigest;
    while (lines >> file.book >> file.format >> file.selection >> file.inputs >>
           nameDigest >> file.run) {
        if (nameDigest == wanted) {
            file.name = name;
            return file;
        }
    }
    return std::nullopt;
}

// Two files of one content differ in their names; the latest note of a name counts.
void WrittenFiles::note(const std::string& content, const WrittenFile& file) {
    const std::string known = notes(content);
    library_.setFileProp(content, kNotesProperty,
                         lineOf(file) + (known == kImported ? "" : known));
}

void WrittenFiles::forget(const std::string& content, const WrittenFile& file) {
    library_.inWriteTransaction([&] {
        std::string known = notes(content);
        const std::string line = lineOf(file);
        if (const std::size_t start = known.find(line); start != std::string::npos) {
            known.erase(start, line.size());
            library_.setFileProp(content, kNotesProperty,
                                 known.empty() ? kImported : known);
        }
    });
}

void WrittenFiles::note(const std::vector<std::pair<std::string, WrittenFile>>& files) {
    library_.inWriteTransaction([&] {
        for (const auto& [content, file] : files) {
            note(content, file);
        }
    });
}

void WrittenFiles::noteImported(const std::string& content) {
    if (notes(content).empty()) {
        library_.setFileProp(content, kNotesProperty, kImported);
    }
}

bool WrittenFiles::hasMarkAlone(const std::string& content, const std::string& path) {
    char hash[64] = {};
    const int length = FastBookHash(path.c_str(), hash, sizeof hash);
    return length > 0 && notes(content).empty() &&
           library_.fileProp(std::string(hash, static_cast<std::size_t>(length)),
                             kMarkProperty) == "2";
}

}  // namespace client
