// A device with notes, and an exported document with newer and more ones.
#pragma once

#include <string>

#include "c_exporter.h"
#include "contract_device.h"
#include "host_records.h"
#include "on_empty_device.h"

// Returns the book b00c with notes of these numbers; each text starts with the timestamp.
inline host::BookRecord bookOf(int first, int last, std::int64_t timestamp,
                               std::size_t textSize) {
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

class IncomingNotes : public OnEmptyDevice {
protected:
    static constexpr char kBook[] = "b00c";
    static constexpr char kDocument[] = "incoming.html";

    // Creates `notes` notes on the device and as many in the document, half of them the
    // same. Each has a text of `textSize` bytes.
    void prepare(int notes, std::size_t textSize) {
        const host::BookRecord there = bookOf(0, notes, 1, textSize);
        std::string document;
        {
            const ScratchDirectory elsewhere;
            merge({bookOf(notes / 2, notes + notes / 2, 2, textSize)});
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

    // Restores the device after prepare().
    static void restore() {
        std::filesystem::remove_all("mnt");
        std::filesystem::copy("saved", "mnt", std::filesystem::copy_options::recursive);
    }

    std::string before_;  // the device's records
    std::string after_;   // its records after an import of the document
};
