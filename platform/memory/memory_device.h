// The data of the platform in memory. Fill it before another thread uses it.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace memory {

struct StoredNote {
    std::string uuid;
    std::string color;
    std::string text;
    std::string comment;
    std::string picture;
    std::string position;  // URI
};

struct StoredBook {
    std::string hash;  // pairs of hexadecimal digits
    std::string title;
    std::string author;
    std::string path;  // of the book's file
    std::vector<StoredNote> notes;
};

struct Device {
    std::vector<StoredBook> books;
    std::string payload = {};  // of every dump; empty if there is none
    std::map<std::string, std::map<int, std::string>> fileProps = {};  // by hash
};

// Returns the initial device.
Device deviceOfOneNote();

inline Device& device() {
    static Device instance = deviceOfOneNote();
    return instance;
}

// Returns the book with this hash; null if there is none.
const StoredBook* findBook(const std::string& hash);

}  // namespace memory
