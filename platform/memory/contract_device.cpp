// Gives the contract tests access to the device in memory.
#include "contract_device.h"

#include "memory_device.h"

void startEmptyDevice() { memory::device() = {}; }

void putOnDevice(const ContractBook& book) {
    memory::StoredBook stored{book.hash, book.title, book.author, book.path, {}};
    for (const ContractNote& note : book.notes) {
        stored.notes.push_back(
            {note.uuid, note.color, note.text, note.comment, note.image, note.anchor});
    }
    memory::device().books.push_back(std::move(stored));
}

std::string uriOfPage(double page) { return "book?page=" + std::to_string(page); }

std::string readerDatabasePath() { return "books.db"; }

std::optional<std::string> filePropOnDevice(const std::string& hash, int prop) {
    const auto& props = memory::device().fileProps[hash];
    const auto found = props.find(prop);
    return found == props.end() ? std::nullopt : std::optional(found->second);
}
