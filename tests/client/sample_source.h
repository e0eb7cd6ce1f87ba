// Files that notes are loaded from, and the notes read from them.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <optional>
#include <string>
#include <vector>

#include "client/collection/loading.h"
#include "client/collection/position.h"
#include "client/error.h"
#include "client/listings/listing.h"
#include "client/sources/source.h"
#include "client/text/affixes.h"
#include "scratch_files.h"

// Writes the content into a file of the working directory, and reads it. SQL that creates
// tables becomes a database.
inline client::SourceContent readSample(const std::string& content) {
    const bool isSql = client::startsWith(content, "CREATE TABLE");
    writeFile("sample", isSql ? "" : content);
    if (isSql) {
        SQLite::Database("sample", SQLite::OPEN_READWRITE).exec(content);
    }
    return client::readSource("sample");
}

inline std::string show(const client::Note& note) {
    return note.uuid + '|' + client::pageText(note) + '|' + note.color + '|' + note.text +
           '|' + note.comment + '|' + note.picture + '|' + client::timeText(note);
}

// Leaves out the number of the note in its file.
inline std::string show(const client::Place& place) {
    const std::string location = place.location ? std::to_string(*place.location) : "";
    return (place.page ? client::decimal(*place.page) : "") + '|' + location + '|' +
           place.chapter + '|' + (client::isRank(place.order) ? "" : place.order);
}

// Adds a book with the notes to the collection.
inline void addBook(const client::Book& book, const std::vector<client::Note>& notes,
                    const std::optional<std::string>& styleSheet = {}) {
    std::vector<client::IncomingBook> books = {{book}};
    for (const client::Note& note : notes) {
        books[0].notes.add(note);
    }
    client::addToCollection(books, host::OnKnownBook::Overwrite, styleSheet);
}

// Returns a line for each note, as `showOne` gives it.
template <class ShowOne>
std::string shownNotes(const std::string& content, const ShowOne& showOne) {
    std::string shown;
    for (const client::IncomingBook& book : readSample(content).books) {
        for (const client::Note& note : book.notes) {
            shown += showOne(note) + '\n';
        }
    }
    return shown;
}

inline std::string shownNotes(const std::string& content) {
    return shownNotes(content, [](const client::Note& note) { return show(note); });
}

// Returns text, page, location, chapter and order of each note.
inline std::string shownPlaces(const std::string& content) {
    return shownNotes(content, [](const client::Note& note) {
        return note.text + '|' + show(note.place);
    });
}

// Returns a line for each book with its uuids and the skipped records, or the error
// instead.
inline std::string shownSample(const std::string& content) {
    std::string shown;
    try {
        const client::SourceContent source = readSample(content);
        for (const client::IncomingBook& book : source.books) {
            shown += book.book.title + " by " + book.book.author + ':';
            for (const client::Note& note : book.notes) {
                shown += ' ' + note.uuid;
            }
            shown += '\n';
        }
        return shown + source.skipped.summary("it");
    } catch (const client::UserError& error) {
        return error.what();
    }
}
