#include "incoming_notes.h"

#include "contract_device.h"

#include <filesystem>

host::BookRecord bookOf(int first, int last, std::int64_t timestamp, std::size_t textSize) {
    host::BookRecord book{"b00c", "Book", "", {}};
    for (int number = first; number < last; ++number) {
        const std::string text = std::to_string(timestamp) + std::string(textSize, 'x');
        const std::string uuid = "n" + std::to_string(number);
        book.notes.push_back({uuid,
                              {{host::kUuidTag, uuid, {}, timestamp},
                               {host::kTextTag, text, {}, timestamp}}});
    }
    return book;
}

void IncomingNotes::prepare(int notes, std::size_t textSize) {
    const host::BookRecord there = bookOf(0, notes, 1, textSize);
    const host::BookRecord incoming = bookOf(notes / 2, notes + notes / 2, 2, textSize);
    std::string document;
    {
        const ScratchDirectory elsewhere;
        merge({incoming});
        document = documentOf(exported());
        merge({there});
        after_ = recordsOnDevice();
    }
    writeFile(kDocument, document);
    putOnDevice({kBook, "Book", "Author", "", {}});
    merge({there});
    before_ = recordsOnDevice();
    std::filesystem::copy("mnt", "saved", std::filesystem::copy_options::recursive);
}

void IncomingNotes::restore() const {
    std::filesystem::remove_all("mnt");
    std::filesystem::copy("saved", "mnt", std::filesystem::copy_options::recursive);
}
