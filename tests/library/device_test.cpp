#include "device_test.h"

void loadSampleBook() {
    script().libraryIds[kUid] = kLibraryId;
    script().libraryBooks[kLibraryId] = {"Dune & \"Sons\"", "Frank <Herbert>"};
    script().itemIds[kBook] = kItem;
    script().fastHashes[kItem] = "626F6F6B";
    script().payload = "records of the book and its notes, in the engine's own form";
    script().hashText = "abc123";
    script().pages = {{"at 12.9", 12.9}, {"at 3", 3.0}};
    const std::string image = "\xFF\xD8\xFF\xE0";
    scripted::addNote(kBook, {11, "u-11", "yellow", "first <b>\xE2\x80\xA9second", image,
                              "it's\nfine\xE2\x80\xA8\"now\"", "at 12.9", "at 3"});
    scripted::addNote(kBook, {12, "u-12"});
    scripted::addNote(
        kBook, {13, "a&b", "x\"y", "", "", "\xCE\xB1\nonly\tthis", "nowhere", "at 3"});
    scripted::addNote(kBook, {14, "", "red", "", image, "", "", "at 3"});
    writeFile(NOTES_EXPORT_DEVICE_ROOT "/system/reader/notes.css",
              "p { margin: 0 }\na > b::after { content: \"&\" }");
}

std::string golden(const std::string& name) { return readFile(GOLDEN_DIR "/" + name); }

bool startsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

Ids renderedIds() {
    Ids ids;
    for (const std::string& call : script().calls) {
        if (call.find("::getColor()") != std::string::npos) {
            ids.push_back(std::stoull(call.substr(call.find('(') + 1)));
        }
    }
    return ids;
}

std::string joined(const Calls& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}
