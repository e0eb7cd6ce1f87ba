// Clippings files that grow between two loads.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "collection_in_memory.h"

namespace {

std::string show(const std::vector<host::BookRecord>& books) {
    std::string text;
    for (const host::BookRecord& book : books) {
        text += book.fastHash + ' ' + book.title + '\n';
        for (const host::NoteRecord& note : book.notes) {
            for (const host::TagRecord& tag : note.tags) {
                text += "  " + note.uuid + ' ' + std::to_string(tag.tag) + ' ' + tag.text +
                        tag.json.value_or("") + '@' + std::to_string(tag.timestamp) + '\n';
            }
        }
    }
    return text;
}

// A few places, times and texts, so that records meet.
class Generator {
public:
    explicit Generator(unsigned seed) : random_(seed) {}

    std::size_t below(std::size_t limit) { return random_() % limit; }

    std::string file() {
        std::string text;
        std::vector<std::string> records;
        for (std::size_t count = 2 + below(12); count > 0; --count) {
            const bool isCopy = !records.empty() && below(10) == 0;
            records.push_back(isCopy ? records[below(records.size())] : record());
            text += records.back();
        }
        return text;
    }

private:
    template <std::size_t count>
    std::string oneOf(const char* const (&texts)[count]) {
        return texts[below(count)];
    }

    std::string range(const char* name) {
        const std::size_t first = 1 + below(8);
        const std::size_t length = below(4);
        return std::string(name) + ' ' + std::to_string(first) +
               (length == 0 ? "" : '-' + std::to_string(first + length));
    }

    std::string place() {
        switch (below(8)) {
            case 0:
                return "";
            case 1:
                return "on page xi | " + range("Location");
            case 2:
                return range("on page") + " | " + range("Location");
            case 3:
            case 4:
                return range("on page");
            default:
                return range("at location");
        }
    }

    std::string date() {
        const std::string minute = std::to_string(10 + below(20));
        return below(4) == 0 ? ""
                             : " | Added on Sunday, June 10, 2012 10:" + minute + ":00 PM";
    }

    std::string record() {
        static constexpr const char* kTitles[] = {"Emma (J)",       "Emma (J)",
                                                  "\uFEFFEmma (J)", "\u00C9mma  (J)",
                                                  "E\u0301mma (J)", "\xC9mma (J)"};
        static constexpr const char* kTexts[] = {"a", "b",         "ab",
                                                 "",  "\xC9\r\na", "c\u2029b"};
        static constexpr const char* kKinds[] = {"Highlight", "Highlight", "Note", "Note",
                                                 "Bookmark"};
        const std::string kind = oneOf(kKinds);
        return oneOf(kTitles) + "\n- Your " + kind + ' ' + place() + date() + "\n\n" +
               (kind == "Bookmark" ? "" : oneOf(kTexts)) +
               "\n==========" + (below(8) == 0 ? "" : "\n");
    }

    std::mt19937 random_;
};

void expectGrownEqualsFresh(unsigned seed) {
    Generator generator(seed);
    const std::string file = generator.file();
    CollectionInMemory fresh;
    fresh.load(file);
    CollectionInMemory grown;
    std::vector<std::size_t> cuts = {file.size(), file.size()};  // twice changes nothing
    for (std::size_t count = generator.below(5); count > 0; --count) {
        cuts.push_back(generator.below(file.size()));
    }
    std::sort(cuts.begin(), cuts.end());
    for (const std::size_t cut : cuts) {
        grown.load(std::string_view(file).substr(0, cut));
    }
    ASSERT_EQ(show(grown.records()), show(fresh.records())) << "seed " << seed << '\n'
                                                            << file;
}

// NOTES_EXPORT_GROWING_FILES sets the number of files.
TEST(Growth, GivesWhatFreshLoadGives) {
    const ScratchDirectory scratch;
    const char* count = std::getenv("NOTES_EXPORT_GROWING_FILES");
    const unsigned long files = count == nullptr ? 200 : std::stoul(count);
    for (unsigned seed = 1; seed <= files && !HasFatalFailure(); ++seed) {
        expectGrownEqualsFresh(seed);
    }
}

}  // namespace
