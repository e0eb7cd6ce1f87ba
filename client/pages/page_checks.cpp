#include "client/pages/page_checks.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <stdexcept>
#include <vector>

#include "client/error.h"
#include "client/files/cause.h"
#include "client/files/whole_file.h"
#include "dump/format.h"
#include "dump/import_result.h"
#include "dump/reader.h"
#include "dump/writer.h"
#include "store/database_paths.h"

namespace client {
namespace {

bool endsWhole(const std::string& path) {
    constexpr char kEnd[] = "</html>";
    constexpr std::streamoff kLength = sizeof kEnd - 1;
    std::ifstream file(path, std::ios::binary);
    file.seekg(-kLength, std::ios::end);
    char end[sizeof kEnd] = {};
    file.read(end, kLength);
    return file && std::string(end) == kEnd;
}

// The second write sets the cause for which the first one was short.
bool writesBlock(int file) {
    constexpr std::array<char, 65536> kBlock = {};
    constexpr auto kSize = static_cast<ssize_t>(kBlock.size());
    return write(file, kBlock.data(), kBlock.size()) == kSize ||
           write(file, kBlock.data(), kBlock.size()) == kSize;
}

// Returns the error that keeps a file at `path` from being made or from growing now, or 0.
int obstacle(const std::string& path) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    if (file == -1) {
        return errno;
    }
    int error = writesBlock(file) && fsync(file) == 0 ? 0 : errno;
    if (close(file) != 0 && error == 0) {
        error = errno;
    }
    return error;
}

bool holdsOnly(const std::vector<host::BookRecord>& books, const std::string& hash) {
    return books.size() == 1 && books[0].fastHash == hash;
}

// The library does not report why it got no records: the databases are read again.
std::string findRefusal(const std::string& hash,
                        const std::set<unsigned long long>& notes) {
    constexpr char kWasInUse[] = "the reader database was in use meanwhile; export again";
    try {
        host::ReaderStore store(host::kReaderDatabasePath);
        const auto book = store.findBook(hash);
        std::string dump;
        return book && host::writeDump(store, {static_cast<unsigned long long>(book->id)},
                                       notes, dump)
                   ? kWasInUse
                   : "the reader database no longer has the book";
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

}  // namespace

void requireWhole(const std::string& path, const std::string& displayPath) {
    if (endsWhole(path)) {
        return;
    }
    const int error = obstacle(path);
    throw UserError(
        "Could not write " + displayPath + ": " +
        (error == 0 ? "the cause is gone; export again" : causeFor(path, error)) + '.');
}

std::string findRecordsError(const std::string& path, const std::string& hash,
                             const std::set<unsigned long long>& notes) {
    try {
        return holdsOnly(host::readDump(path), hash)
                   ? ""
                   : "the reader database was replaced meanwhile; export again";
    } catch (const host::DumpError& error) {
        return error.result == host::kNoDump ? findRefusal(hash, notes) : error.what();
    }
}

bool namesBook(const std::string& path, const std::string& hash) {
    const std::string dump =
        std::string("<script type=\"") + host::kDumpMediaType + "\" book_hash=\"";
    return readFile(path).find(dump + hash + "\">") != std::string::npos;
}

}  // namespace client
