#include <iostream>

#include "device/book_notes.h"
#include "device/decimal.h"
#include "listings/listing.h"
#include "terminal/one_line.h"
#include "terminal/terminal.h"

void printLines(const Books& books) {
    for (const ListedBook& book : books) {
        std::cout << oneLine(book.hash) << '\t' << bold(oneLine(book.title)) << '\t'
                  << oneLine(book.author) << '\n';
    }
}

void printLines(const Notes& notes) {
    for (const veloran::utilities::Note& note : notes) {
        const auto page = pageOf(note);
        std::cout << note.noteId << '\t' << (page ? decimal(*page) : std::string()) << '\t'
                  << oneLine(note.getColor()) << '\t' << oneLine(note.getText()) << '\n';
    }
}
