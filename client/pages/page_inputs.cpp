#include "client/pages/page_inputs.h"

#include <filesystem>

#include "client/files/digest.h"
#include "client/files/whole_file.h"
#include "store/database_paths.h"
#include "utilities/serialization_utils.h"

namespace client {
namespace {

std::string currentStyleSheet() {
    std::error_code failure;
    return std::filesystem::is_regular_file(host::kNoteStyleSheetPath, failure)
               ? readFile(host::kNoteStyleSheetPath)
               : std::string();
}

void addNote(Digest& digest, const host::NoteRecord& note) {
    digest.addText(note.uuid);
    for (const auto& [tag, text, json, timestamp] : note.tags) {
        digest.addText(std::to_string(tag));
        digest.addText(text);
        digest.addText(json.value_or("-"));
        digest.addText(std::to_string(timestamp));
    }
}

}  // namespace

PageInputs::PageInputs()
    : styleSheet_(currentStyleSheet()),
      reader_(host::kReaderDatabasePath),
      library_(host::kLibraryDatabasePath) {}

std::string PageInputs::digest(const host::BookEntry& book, const NoteSelection& notes) {
    using veloran::utilities::SerializationUtils;
    const auto libraryId = library_.findBook(SerializationUtils::FromHex(book.fastHash));
    const auto known = libraryId ? library_.book(*libraryId) : std::nullopt;
    Digest digest;
    for (const std::string& text :
         {styleSheet_, book.title, book.path, known ? known->title : "",
          known ? known->author : "", known ? known->path : ""}) {
        digest.addText(text);
    }
    const std::set<unsigned long long>& ids = notes.ids;
    const auto isSelected = [&ids](std::int64_t id) {
        return ids.empty() || ids.count(static_cast<unsigned long long>(id)) > 0;
    };
    for (const std::int64_t id : notes.order) {
        if (isSelected(id)) {
            digest.addText(std::to_string(id));
        }
    }
    reader_.inReadTransaction([&] {
        for (const std::int64_t id : reader_.noteIds(book.id)) {
            if (isSelected(id)) {
                addNote(digest, reader_.note(id).value());
            }
        }
    });
    return digest.hexadecimal();
}

}  // namespace client
