#include "device/nearest_books.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace {

// Of texts in bytes: enough for every hash, and short enough for every title to be tried.
constexpr std::size_t kCompared = 100;

char lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string folded(const std::string& text) {
    std::string result = text.substr(0, kCompared);
    std::transform(result.begin(), result.end(), result.begin(), lower);
    return result;
}

// For every end in `text`, the least edit distance of the bytes before it to what was typed
// so far; this takes the next byte typed.
void advance(std::vector<std::size_t>& distances, char typed, std::string_view text) {
    std::size_t diagonal = distances[0]++;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t replaced = diagonal + (text[i] == typed ? 0 : 1);
        diagonal = distances[i + 1];
        distances[i + 1] = std::min({replaced, diagonal + 1, distances[i] + 1});
    }
}

// The edit distance between `typed` and the part of `text` that is nearest to it.
std::size_t distance(std::string_view typed, std::string_view text) {
    std::vector<std::size_t> distances(text.size() + 1);
    for (const char byte : typed) {
        advance(distances, byte, text);
    }
    return *std::min_element(distances.begin(), distances.end());
}

std::size_t distance(std::string_view typed, const host::BookEntry& book) {
    return std::min(distance(typed, folded(book.fastHash)),
                    distance(typed, folded(book.title)));
}

}  // namespace

bool startsTitle(const std::string& typed, const host::BookEntry& book) {
    const std::string start = folded(typed);
    return !start.empty() && folded(book.title).compare(0, start.size(), start) == 0;
}

std::vector<host::BookEntry> byNearness(const std::string& typed,
                                        std::vector<host::BookEntry> books) {
    const std::string wanted = folded(typed);
    std::vector<std::pair<std::size_t, host::BookEntry>> ranked;
    for (host::BookEntry& book : books) {
        const std::size_t rank = distance(wanted, book);
        ranked.emplace_back(rank, std::move(book));
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& one, const auto& other) {
        return one.first < other.first;
    });
    std::transform(ranked.begin(), ranked.end(), books.begin(),
                   [](auto& entry) { return std::move(entry.second); });
    return books;
}
